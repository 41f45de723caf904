// The peer of one-line edit boxes.
#pragma once
#include <QLineEdit>

#include "backends/qt/peers/ControlPeer.h"
#include "forms/controls/edits/TextBox.h"

namespace lumenote {

class TextBoxPeer final : public ControlPeer {
 public:
  TextBoxPeer(TextBox& box, QWidget& parent, LayouterSource&);

  void Update(Property property) override;
  void Compare(DifferenceList& differences) const override;

 private:
  TextBoxPeer(TextBox& box, QLineEdit* widget);

  TextBox& box_;
  QLineEdit& widget_;
};

}  // namespace lumenote

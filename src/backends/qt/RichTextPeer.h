// Rich-text boxes on screen.
#pragma once
#include "backends/qt/ControlPeer.h"
#include "backends/qt/RichTextView.h"
#include "forms/RichTextBox.h"

namespace lumenote {

class RichTextPeer final : public ControlPeer {
 public:
  RichTextPeer(RichTextBox& box, QWidget& parent, LayouterSource& layouters);
  ~RichTextPeer() override;

  void Compare(DifferenceList& differences) const override;

 protected:
  bool PassesMouse() const override { return false; }  // the view does, by its viewport

 private:
  RichTextPeer(RichTextBox& box, RichTextView* view);

  RichTextBox& box_;
  QPointer<RichTextView> view_;
};

}  // namespace lumenote

// The peer of rich-text boxes.
#pragma once
#include "backends/qt/peers/ControlPeer.h"
#include "backends/qt/view/RichTextView.h"
#include "forms/controls/edits/RichTextBox.h"

namespace lumenote {

class RichTextPeer final : public ControlPeer {
 public:
  RichTextPeer(RichTextBox& box, QWidget& parent, LayouterSource& layouters);
  ~RichTextPeer() override;

  void Compare(DifferenceList& differences) const override;

 protected:
  bool PassesMouse() const override { return false; }  // the view forwards those of its viewport

 private:
  RichTextPeer(RichTextBox& box, RichTextView* view);

  RichTextBox& box_;
  QPointer<RichTextView> view_;
};

}  // namespace lumenote

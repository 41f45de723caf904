#include "backends/qt/peers/RichTextPeer.h"

namespace lumenote {

namespace {

RichTextView* MakeView(RichTextBox& box, QWidget& parent, LayouterSource& layouters) {
  auto& surface = dynamic_cast<DocumentSurface&>(box.Surface());
  auto* view = new RichTextView(surface, layouters.LayouterOf(box), CallbacksOf(box), &parent);
  if (Speller* speller = layouters.SpellerOf(box)) view->CheckSpelling(*speller, box.Learn);
  return view;
}

}  // namespace

RichTextPeer::RichTextPeer(RichTextBox& box, QWidget& parent, LayouterSource& layouters)
    : RichTextPeer(box, MakeView(box, parent, layouters)) {}

RichTextPeer::RichTextPeer(RichTextBox& box, RichTextView* view)
    : ControlPeer(box, *view), box_(box), view_(view) {}

RichTextPeer::~RichTextPeer() {
  if (view_) view_->Detach();
}

void RichTextPeer::Compare(DifferenceList& differences) const {
  ControlPeer::Compare(differences);
  for (const std::string& difference : view_->Differences()) differences.Add(box_, difference);
}

}  // namespace lumenote

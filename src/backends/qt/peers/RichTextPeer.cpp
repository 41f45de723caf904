#include "backends/qt/peers/RichTextPeer.h"

#include "forms/Form.h"

namespace lumenote {

namespace {

RichTextView* MakeView(RichTextBox& box, QWidget& parent, LayouterSource& layouters) {
  ViewCallbacks callbacks;
  callbacks.act = [&box](const std::function<void()>& act) { box.Owner().Raise(act); };
  callbacks.mouseUp = [&box](const MouseEvent& event) { box.UserMouseUp(event); };
  callbacks.locked = [&box] { return box.Locked(); };
  callbacks.link = [&box](std::u16string_view address) { box.UserOpenLink(address); };
  callbacks.tabLeaves = [&box] { return box.TabLeaves(); };
  auto& surface = dynamic_cast<DocumentSurface&>(box.Surface());
  auto* view = new RichTextView(surface, layouters.LayouterOf(box), std::move(callbacks), &parent);
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

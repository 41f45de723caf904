#include "backends/headless/HeadlessView.h"

#include "base/Twips.h"
#include "forms/Form.h"
#include "surface/DocumentSurface.h"

namespace lumenote {

HeadlessView::HeadlessView(RichTextBox& box, FixedLayouter& layouter)
    : box_(box), text_(dynamic_cast<DocumentSurface&>(box.Surface()), layouter, *this) {
  text_.Pane().Margin(0);
  text_.Show(true);
  Resize();
}

void HeadlessView::Resize() {
  text_.Resize({box_.Width() / kTwipsPerPixel, box_.Height() / kTwipsPerPixel});
}

void HeadlessView::Act(const std::function<void()>& act) { box_.Owner().Raise(act); }

void HeadlessView::OpenMenu(PixelPoint at) {
  const auto twips = [](double pixels) { return static_cast<float>(pixels * kTwipsPerPixel); };
  box_.UserMouseUp({MouseButton::Right, {twips(at.x), twips(at.y)}});
}

}  // namespace lumenote

// Where the lines of a box wrap.
#include "backends/headless/BoxLayout.h"

#include <algorithm>

#include "forms/controls/RichTextBox.h"
#include "surface/DocumentSurface.h"

namespace lumenote {

BoxLayout::BoxLayout(const RichTextBox& box) : box_(box), breaker_(box.Width()) {}

void BoxLayout::Attach(DocumentSurface& surface) {
  surface_ = &surface;
  surface.View(this);
}

float BoxLayout::WrapWidth() const {
  const float margin = surface_->RightMargin();
  return margin > 0 ? margin : box_.Width();
}

void BoxLayout::WrapWidthChanged() {
  if (breaker_.Width() == WrapWidth()) return;
  breaker_.Width(WrapWidth());
  surface_->Lines().Reset();
}

int BoxLayout::LinesPerPage() const {
  constexpr float kLineHeight = 240;
  return std::max(1, static_cast<int>(box_.Height() / kLineHeight));
}

}  // namespace lumenote

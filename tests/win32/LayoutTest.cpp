// The layout with the system's fonts.
#include "backends/win32/text/UniscribeLayouter.h"
#include "view/LayoutContract.h"

namespace lumenote {

std::unique_ptr<TextLayouter> MakeLayouter() {
  auto layouter = std::make_unique<UniscribeLayouter>();
  layouter->boxOf = [](const Kept&) { return PixelSize{60, 40}; };
  return layouter;
}

}  // namespace lumenote

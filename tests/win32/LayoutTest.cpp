// The layout with the system's fonts.
#include "backends/win32/text/UniscribeLayouter.h"
#include "view/LayoutContract.h"

namespace lumenote {

std::unique_ptr<TextLayouter> MakeLayouter() { return std::make_unique<UniscribeLayouter>(); }
bool LayouterAligns() { return true; }

}  // namespace lumenote

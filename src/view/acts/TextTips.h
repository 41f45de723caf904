// What a tooltip says of the text under the mouse.
#pragma once
#include <string>

#include "view/pane/TextPane.h"

namespace lumenote {

/// Where a link leads, or the text of a footnote; empty for other text.
std::u16string TipAt(TextPane& pane, PixelPoint point);

}  // namespace lumenote

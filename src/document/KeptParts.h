// Replacing text around what stands in it.
#pragma once
#include <string_view>
#include <vector>

#include "document/Document.h"

namespace lumenote {

/// Whether a match of `text` may hold an object or the end of a cell, row or page.
bool MayHoldKept(std::u16string_view text);

struct ReplacedPart {
  Selection range;
  std::u16string_view text;  // part of the text given
};

/// Cuts the replacement of a range that holds objects or ends of cells, rows or pages, so that they
/// stay, and with them all tabs and breaks: where `text`, whose breaks are CR LF, has the same of
/// them in the same order. Else one part, the whole.
std::vector<ReplacedPart> CutAroundKept(const Document& document, Selection range,
                                        std::u16string_view text);

}  // namespace lumenote

// Replacing text around what stands in it.
#pragma once
#include <optional>
#include <string_view>
#include <vector>

#include "document/Document.h"

namespace lumenote {

/// Whether a match of `text` may hold an object or the end of a cell, row or page, or, if the note
/// has links or bookmarks, may keep them because `replacement` is the same but for letter case.
bool MayKeep(const Document& document, std::u16string_view text, std::u16string_view replacement);

struct ReplacedPart {
  Selection range;
  std::u16string_view text;      // part of the text given
  std::optional<KeptId> kept{};  // what the text keeps, as part of a link
};

/// Cuts the replacement of a range that holds objects or ends of cells, rows or pages, so that they
/// stay, and with them all tabs and breaks: where `text`, whose breaks are CR LF, has the same of
/// them in the same order. Text that differs only in letter case keeps links and bookmarks, too.
/// Else one part, the whole.
std::vector<ReplacedPart> CutAroundKept(const Document& document, Selection range,
                                        std::u16string_view text);

}  // namespace lumenote

// Bookmarks, to which links within a note lead.
#pragma once
#include <optional>
#include <string_view>

#include "document/Document.h"

namespace lumenote {

/// Where the first bookmark of that name begins; letter case does not matter.
std::optional<Position> FindBookmark(const Document& document, std::u16string_view name);

}  // namespace lumenote

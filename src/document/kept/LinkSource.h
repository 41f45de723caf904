// The source of links, which other formats know, too: made and read here.
#pragma once
#include <optional>
#include <string>
#include <string_view>

namespace lumenote {

/// What stands before the characters of a link.
std::string LinkOpening(std::u16string_view address);
/// Where a field with that opening leads, if it is a link; "#name" within the note.
std::optional<std::u16string> LinkAddress(std::string_view opening);

}  // namespace lumenote

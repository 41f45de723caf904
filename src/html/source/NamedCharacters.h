// The named character references of HTML.
#pragma once
#include <string_view>

namespace lumenote {

/// Ordered by name: "name=units ", or "name~units " when the reference needs no semicolon; the
/// UTF-16 units are hexadecimal, joined by "+".
extern const std::string_view kNamedCharacters;

}  // namespace lumenote

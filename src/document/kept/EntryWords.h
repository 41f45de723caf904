// Which control words name an entry of a table in the head.
#pragma once
#include <cstdint>
#include <optional>
#include <string_view>

namespace lumenote {

enum class HeadTable : std::uint8_t {
  Fonts,
  Colours,
  Styles,
  Overrides,  // of lists: the lists that paragraphs name
  Lists,
};

/// The table that the word's number belongs to.
std::optional<HeadTable> TableNamedBy(std::string_view word);

}  // namespace lumenote

// Positions in a text.
#pragma once
#include <cstdint>

namespace lumenote {

/// Counts UTF-16 units from the start of the text; a paragraph break counts as two.
using Position = std::int32_t;

/// A selection or range: `start` <= `end`.
struct Selection {
  Position start = 0;
  Position end = 0;
  Position Length() const { return end - start; }
  bool operator==(const Selection&) const = default;
};

}  // namespace lumenote

// How the distance between the lines of a paragraph is given.
#pragma once
#include <cstdint>

namespace lumenote {

/// The numbers are those of the platform's paragraph formats.
enum class LineRule : std::uint8_t {
  Single = 0,
  OneAndHalf = 1,
  Double = 2,
  AtLeast = 3,
  Exact = 4,
  Multiple = 5,
};

}  // namespace lumenote

// What the font dialog shows and returns.
#pragma once
#include <cstdint>
#include <optional>
#include <string>

namespace lumenote {

/// An empty member is mixed in the selection, or left unchanged by the user.
struct FontChoice {
  std::optional<std::u16string> name;
  std::optional<float> size;  // points
  std::optional<bool> bold;
  std::optional<bool> italic;
  std::optional<bool> underline;
  std::optional<bool> strike;
  std::optional<std::int32_t> colour;  // 0xBBGGRR
};

}  // namespace lumenote

// What the desktop's font dialog shows and answers.
#pragma once
#include <cstdint>
#include <optional>
#include <string>

namespace lumenote {

/// Empty members are mixed in the selection, or left as they are by the answer.
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

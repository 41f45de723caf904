// Bytes as a source of choices: a fuzzer's, or random ones.
#pragma once
#include <cstddef>
#include <cstdint>
#include <span>

#include "base/Position.h"

namespace lumenote {

/// Once the bytes are used up every choice is the first one.
class Choices {
 public:
  explicit Choices(std::span<const std::uint8_t> bytes) : bytes_(bytes) {}

  bool AtEnd() const { return bytes_.empty(); }
  Position Below(Position count) {
    return static_cast<Position>(Two() % static_cast<unsigned>(count));
  }
  Position UpTo(Position most) { return Below(most + 1); }
  bool Coin() { return One() % 2 != 0; }
  template <class T, std::size_t count>
  const T& Of(const T (&values)[count]) {
    return values[One() % count];
  }

 private:
  unsigned One() {
    if (bytes_.empty()) return 0;
    const unsigned byte = bytes_.front();
    bytes_ = bytes_.subspan(1);
    return byte;
  }
  unsigned Two() {
    const unsigned high = One();
    return high << 8 | One();
  }

  std::span<const std::uint8_t> bytes_;
};

}  // namespace lumenote

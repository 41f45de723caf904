// Scanning for what is not plain text, eight characters at a time.
#pragma once
#include <bit>
#include <cstdint>
#include <cstring>

namespace lumenote {

inline constexpr int kPlainStep = 8;

/// Lanes of `Bits` bits in a 64-bit word.
template <int Bits>
struct Lanes {
  static constexpr std::uint64_t kTop = std::uint64_t{1} << (Bits - 1);
  static constexpr std::uint64_t kEach = ~std::uint64_t{0} / (kTop * 2 - 1);

  /// The top bit of each lane that is zero; exact, no carry runs into a neighbour.
  static std::uint64_t Zeros(std::uint64_t word) {
    constexpr std::uint64_t kLow = kEach * (kTop - 1);
    return ~(((word & kLow) + kLow) | word) & kEach * kTop;
  }
  /// How many lanes, in the order of memory, come before the first one that RTF does not take as
  /// plain text: below 0x20 or from 0x80 on, a backslash or a brace.
  static int Plain(const void* memory) {
    std::uint64_t word;
    std::memcpy(&word, memory, sizeof word);
    const std::uint64_t ascii = Zeros(word & kEach * (kTop * 2 - 0x80));
    const std::uint64_t marks = Zeros(word & kEach * (kTop * 2 - 0x20)) |
                                Zeros(word ^ kEach * '\\') | Zeros(word ^ kEach * '{') |
                                Zeros(word ^ kEach * '}') | (ascii ^ kEach * kTop);
    const int bits = std::endian::native == std::endian::little ? std::countr_zero(marks)
                                                                : std::countl_zero(marks);
    return bits / Bits;
  }
};

/// The same for `kPlainStep` bytes or units.
inline int PlainPrefix(const char* bytes) { return Lanes<8>::Plain(bytes); }
inline int PlainPrefix(const char16_t* units) {
  constexpr int kHalf = kPlainStep / 2;
  const int first = Lanes<16>::Plain(units);
  return first < kHalf ? first : kHalf + Lanes<16>::Plain(units + kHalf);
}

/// Whether a single unit is plain text.
inline bool IsPlain(char16_t unit) {
  return unit >= 0x20 && unit < 0x80 && unit != u'\\' && unit != u'{' && unit != u'}';
}

}  // namespace lumenote

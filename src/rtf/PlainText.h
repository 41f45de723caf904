// Scanning for what is not plain text, eight bytes at a time.
#pragma once
#include <bit>
#include <cstdint>
#include <cstring>

namespace lumenote {

inline constexpr int kPlainStep = 8;

/// How many of the `kPlainStep` bytes at `bytes` come before the first one that RTF does not take
/// as plain text: a control character, a backslash, a brace, or a byte from 0x80 on.
inline int PlainPrefix(const char* bytes) {
  constexpr std::uint64_t kEach = 0x0101010101010101;
  std::uint64_t word;
  std::memcpy(&word, bytes, sizeof word);
  // The top bit of each byte that is zero; exact, no carry runs into a neighbour.
  const auto zeros = [](std::uint64_t w) { return ~(((w & kEach * 0x7F) + kEach * 0x7F) | w); };
  const std::uint64_t marks = zeros(word ^ kEach * '\\') | zeros(word ^ kEach * '{') |
                              zeros(word ^ kEach * '}') | zeros(word & kEach * 0xE0) | word;
  const std::uint64_t tops = marks & kEach * 0x80;
  const int bits =
      std::endian::native == std::endian::little ? std::countr_zero(tops) : std::countl_zero(tops);
  return bits / 8;
}

}  // namespace lumenote

// Copies plain text, many characters at a time.
#pragma once
#include <bit>
#include <cstdint>
#include <cstring>
#ifdef __SSE2__
#include <emmintrin.h>
#endif

namespace lumenote {

/// Whether a character is literal in RTF: 0x20 to 0x7E except backslash and braces.
constexpr bool IsPlain(char16_t unit) {
  return unit >= 0x20 && unit < 0x7F && unit != u'\\' && unit != u'{' && unit != u'}';
}

// `CopyPlain` copies `kPlainStep` characters and returns the number of plain ones at the start; the
// rest of the output is unspecified.
#ifdef __SSE2__

inline constexpr int kPlainStep = 16;

namespace lanes {

/// The number of plain bytes at the start of sixteen. Adding one makes bytes from 0x7F on negative
/// or 0.
inline int PlainBytes(__m128i bytes) {
  const __m128i raised = _mm_add_epi8(bytes, _mm_set1_epi8(1));
  const __m128i marks = _mm_or_si128(_mm_or_si128(_mm_cmplt_epi8(raised, _mm_set1_epi8(0x21)),
                                                  _mm_cmpeq_epi8(bytes, _mm_set1_epi8('\\'))),
                                     _mm_or_si128(_mm_cmpeq_epi8(bytes, _mm_set1_epi8('{')),
                                                  _mm_cmpeq_epi8(bytes, _mm_set1_epi8('}'))));
  return std::countr_zero(static_cast<unsigned>(_mm_movemask_epi8(marks)) | 1U << kPlainStep);
}

}  // namespace lanes

inline int CopyPlain(const char* from, char16_t* to) {
  const __m128i bytes = _mm_loadu_si128(reinterpret_cast<const __m128i*>(from));
  const __m128i zero = _mm_setzero_si128();
  auto* out = reinterpret_cast<__m128i*>(to);
  _mm_storeu_si128(out, _mm_unpacklo_epi8(bytes, zero));
  _mm_storeu_si128(out + 1, _mm_unpackhi_epi8(bytes, zero));
  return lanes::PlainBytes(bytes);
}

inline int CopyPlain(const char* from, char* to) {
  const __m128i bytes = _mm_loadu_si128(reinterpret_cast<const __m128i*>(from));
  _mm_storeu_si128(reinterpret_cast<__m128i*>(to), bytes);
  return lanes::PlainBytes(bytes);
}

inline int CopyPlain(const char16_t* from, char* to) {
  const auto* in = reinterpret_cast<const __m128i*>(from);
  // Saturates: a unit from 0x100 on becomes 0xFF, one from 0x8000 on 0; neither is plain.
  const __m128i bytes = _mm_packus_epi16(_mm_loadu_si128(in), _mm_loadu_si128(in + 1));
  _mm_storeu_si128(reinterpret_cast<__m128i*>(to), bytes);
  return lanes::PlainBytes(bytes);
}

#else

inline constexpr int kPlainStep = 8;

// Characters packed in 64-bit words, in lanes of eight or sixteen bits.
namespace lanes {

inline constexpr std::uint64_t kBytes = 0x0101010101010101;  // 1 in each lane
inline constexpr std::uint64_t kUnits = 0x0001000100010001;

template <class Word, class Character>
Word Load(const Character* from) {
  Word word;
  std::memcpy(&word, from, sizeof word);
  return word;
}

/// 0x80 in each zero byte; exact, without carries between lanes.
constexpr std::uint64_t ZeroBytes(std::uint64_t word) {
  constexpr std::uint64_t kLow = kBytes * 0x7F;
  return ~(((word & kLow) + kLow) | word) & kBytes * 0x80;
}

/// The number of plain bytes at the start, in memory order.
inline int PlainBytes(std::uint64_t word) {
  const std::uint64_t marks = ZeroBytes(word & kBytes * 0xE0) | ZeroBytes(word ^ kBytes * '\\') |
                              ZeroBytes(word ^ kBytes * '{') | ZeroBytes(word ^ kBytes * '}') |
                              ZeroBytes(word ^ kBytes * 0x7F) | (word & kBytes * 0x80);
  const int bits = std::endian::native == std::endian::little ? std::countr_zero(marks)
                                                              : std::countl_zero(marks);
  return bits / 8;
}

constexpr std::uint64_t FourUnits(std::uint32_t bytes) {
  std::uint64_t units = bytes;
  units = (units | units << 16) & 0x0000FFFF0000FFFF;
  return (units | units << 8) & kUnits * 0xFF;
}

/// A unit above 0x7F becomes a byte above 0x7F.
constexpr std::uint32_t FourBytes(std::uint64_t units) {
  const std::uint64_t beyond = ((units & kUnits * 0x7F80) + kUnits * 0x7F80) | units;
  std::uint64_t bytes = (units & kUnits * 0x7F) | (beyond >> 8 & kUnits * 0x80);
  bytes = (bytes | bytes >> 8) & 0x0000FFFF0000FFFF;
  return static_cast<std::uint32_t>(bytes | bytes >> 16);
}

}  // namespace lanes

inline int CopyPlain(const char* from, char16_t* to) {
  const std::uint64_t units[] = {lanes::FourUnits(lanes::Load<std::uint32_t>(from)),
                                 lanes::FourUnits(lanes::Load<std::uint32_t>(from + 4))};
  std::memcpy(to, units, sizeof units);
  return lanes::PlainBytes(lanes::Load<std::uint64_t>(from));
}
inline int CopyPlain(const char* from, char* to) {
  std::memcpy(to, from, kPlainStep);
  return lanes::PlainBytes(lanes::Load<std::uint64_t>(from));
}

inline int CopyPlain(const char16_t* from, char* to) {
  const std::uint32_t bytes[] = {lanes::FourBytes(lanes::Load<std::uint64_t>(from)),
                                 lanes::FourBytes(lanes::Load<std::uint64_t>(from + 4))};
  std::memcpy(to, bytes, sizeof bytes);
  return lanes::PlainBytes(lanes::Load<std::uint64_t>(to));
}

#endif

}  // namespace lumenote

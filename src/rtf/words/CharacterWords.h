// The control words of character formats, shared by reader and writer: a row here makes an
// attribute read and written.
#pragma once
#include <algorithm>
#include <cstdint>
#include <limits>
#include <string_view>
#include <type_traits>

#include "document/formats/Formats.h"

namespace lumenote {

/// \name turns an effect on, \name0 turns it off.
struct EffectWord {
  std::string_view name, on, off;
  std::uint16_t effect;
};
inline constexpr EffectWord kEffectWords[] = {
    {"b", "b", "b0", kBold},
    {"i", "i", "i0", kItalic},
    {"strike", "strike", "strike0", kStrike},
    {"striked", "striked1", "striked0", kDoubleStrike},
    {"caps", "caps", "caps0", kAllCaps},
    {"scaps", "scaps", "scaps0", kSmallCaps},
    {"v", "v", "v0", kHidden},
    {"outl", "outl", "outl0", kOutline},
    {"shad", "shad", "shad0", kShadow},
    {"embo", "embo", "embo0", kEmboss},
    {"impr", "impr", "impr0", kEngrave},
    {"deleted", "deleted", "deleted0", kDeleted},
};

/// Indexed by Underline.
inline constexpr std::string_view kUnderlineWords[] = {
    "ulnone",  "ul",       "ulw",      "uldb",      "uld",        "uldash",
    "uldashd", "uldashdd", "ulth",     "ulwave",    "ululdbwave", "ulhwave",
    "ulldash", "ulthd",    "ulthdash", "ulthdashd", "ulthdashdd", "ulthldash"};

/// An attribute written as \name and a number, where it changes and in the order of this table.
struct NumberWord {
  enum class Kind : std::uint8_t {
    Number,
    Colour,      // an index into the colour table
    Background,  // the same, but 0 is none
  };
  std::string_view name;
  Kind kind;
  std::int64_t (*get)(const CharFormat&);
  void (*set)(CharFormat&, std::int64_t);  // clamps to the attribute's range
};

template <auto kMember, std::int64_t kLeast>
constexpr std::int64_t GetNumber(const CharFormat& format) {
  return std::max<std::int64_t>(format.*kMember, kLeast);
}
template <auto kMember, std::int64_t kLeast>
constexpr void SetNumber(CharFormat& format, std::int64_t number) {
  using Member = std::remove_reference_t<decltype(format.*kMember)>;
  constexpr std::int64_t kMax = std::numeric_limits<Member>::max();
  format.*kMember = static_cast<Member>(std::clamp(number, kLeast, kMax));
}
/// Numbers below `kLeast` are clamped.
template <auto kMember, std::int64_t kLeast>
constexpr NumberWord WordOf(std::string_view name, NumberWord::Kind kind) {
  return {name, kind, GetNumber<kMember, kLeast>, SetNumber<kMember, kLeast>};
}

inline constexpr std::string_view kColourWord = "cf";
inline constexpr NumberWord kNumberWords[] = {
    WordOf<&CharFormat::spacing, -0x8000>("expndtw", NumberWord::Kind::Number),
    WordOf<&CharFormat::scale, 1>("charscalex", NumberWord::Kind::Number),
    WordOf<&CharFormat::colour, 0>(kColourWord, NumberWord::Kind::Colour),
    WordOf<&CharFormat::highlight, 0>("highlight", NumberWord::Kind::Background),
    WordOf<&CharFormat::language, 0>("lang", NumberWord::Kind::Number),
};

/// Index of the row of that name, for its synonyms.
consteval int NumberWordCalled(std::string_view name) {
  int row = 0;
  while (kNumberWords[row].name != name) ++row;
  return row;
}

}  // namespace lumenote

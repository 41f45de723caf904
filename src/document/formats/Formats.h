// Character and paragraph formats.
#pragma once
#include <cstdint>
#include <string>
#include <type_traits>
#include <vector>

#include "document/formats/InternTable.h"
#include "document/formats/LineRule.h"

namespace lumenote {

using FontId = std::uint32_t;
using CharId = std::uint32_t;
using ParaId = std::uint32_t;
using TabsId = std::uint32_t;
// Numbers of kept content; see document/kept/.
using KeptId = std::uint32_t;
using ItemId = std::uint32_t;
using FieldId = std::uint32_t;
using WordsId = std::uint32_t;
using NameId = std::uint32_t;
using HeadId = std::uint32_t;

/// A font as notes name it; it need not be installed.
struct FontFace {
  std::u16string name;
  std::uint8_t charset = 0;  // RTF \fcharset
  std::uint8_t family =
      0;  // RTF \fnil, \froman, \fswiss, \fmodern, \fscript, \fdecor, \ftech, \fbidi
  std::uint8_t pitch = 0;  // RTF \fprq
  bool operator==(const FontFace&) const = default;
};

enum class Underline : std::uint8_t {
  None,
  Single,
  Words,
  Double,
  Dotted,
  Dash,
  DashDot,
  DashDotDot,
  Thick,
  Wave,
  DoubleWave,
  HeavyWave,
  LongDash,
  ThickDotted,
  ThickDash,
  ThickDashDot,
  ThickDashDotDot,
  ThickLongDash
};

enum CharEffect : std::uint16_t {
  kBold = 1,
  kItalic = 2,
  kStrike = 4,
  kDoubleStrike = 8,
  kAllCaps = 16,
  kSmallCaps = 32,
  kHidden = 64,
  kOutline = 128,
  kShadow = 256,
  kEmboss = 512,
  kEngrave = 1024,
  kSuperscript = 2048,
  kSubscript = 4096,
  kDeleted = 8192
};

/// A colour as 0x00BBGGRR, or the platform's automatic one.
using Colour = std::uint32_t;
inline constexpr Colour kAutoColour = 0xFF000000;

/// The attributes of a run that its source or an edit states. A font or size that nobody states is
/// the note's default one, to be shown, and is not written. A colour that is not automatic is
/// written anyway.
enum CharStated : std::uint8_t { kStatesFont = 1, kStatesSize = 2, kStatesColour = 4 };

/// Whether the source says \plain where a run begins although that changes nothing, since some
/// readers understand it in another way there.
enum class Reset : std::uint8_t {
  None,
  BehindText,       // directly behind other text
  AgainBehindText,  // the same in a neighbour of such a run, to stay apart from it
  First,            // nowhere before it
  Edited            // an edit formatted the run: neither it nor the text behind it begins so
};

inline bool IsBehindText(Reset reset) {
  return reset == Reset::BehindText || reset == Reset::AgainBehindText;
}

/// How the source spells a character of the run for which there are several ways.
enum class Spelling : std::uint8_t { Usual, Code, Name };

/// All attributes of a run. Plain data without padding, so that it can be hashed and compared
/// bytewise.
struct CharFormat {
  FontId font = 0;
  Colour colour = kAutoColour;
  Colour highlight = kAutoColour;
  KeptId kept = 0;             // what the RTF source has there beyond these formats
  WordsId words = 0;           // kept control words
  std::uint16_t effects = 0;   // CharEffect
  std::uint16_t size = 20;     // half-points
  std::int16_t offset = 0;     // twips above the line (RTF \up, \dn)
  std::uint16_t language = 0;  // Windows language identifier, 0 not given
  std::int16_t spacing = 0;    // twips between characters
  std::uint16_t scale = 100;   // per cent of the width
  Underline underline = Underline::None;
  std::uint8_t stated = kStatesFont | kStatesSize;  // CharStated
  Reset reset = Reset::None;
  Spelling spelling = Spelling::Usual;
  bool operator==(const CharFormat&) const = default;
};
static_assert(std::has_unique_object_representations_v<CharFormat>);

/// A line's height under LineRule::Multiple.
inline constexpr std::int32_t kSingleLine = 240;

enum class Alignment : std::uint8_t { Left = 0, Right = 1, Centre = 2, Justify = 3 };

/// The attributes of a paragraph that its source states. Values other than the default ones are
/// written anyway; those that nobody stated may come from a list or a style in other programs.
enum ParaStated : std::uint16_t {
  kStatesLeftIndent = 1,
  kStatesFirstIndent = 2,
  kStatesRightIndent = 4,
  kStatesSpaceBefore = 8,
  kStatesSpaceAfter = 16,
  kStatesLineSpacing = 32,
  kStatesAlignment = 64,
  kStatesDirection = 128
};

/// All attributes of a paragraph; lengths are twips. Plain data like `CharFormat`.
struct ParaFormat {
  std::int32_t firstIndent = 0;    // of the first line, from the left edge
  std::int32_t hangingIndent = 0;  // of the following lines, from the first one
  std::int32_t rightIndent = 0;
  std::int32_t spaceBefore = 0;
  std::int32_t spaceAfter = 0;
  std::int32_t lineSpacing = 0;  // twips; under LineRule::Multiple, in units of `kSingleLine`
  TabsId tabs = 0;
  LineRule lineRule = LineRule::Single;
  Alignment alignment = Alignment::Left;
  std::uint8_t bullet = 0;  // 1: a bullet stands before the paragraph
  std::uint8_t rightToLeft = 0;
  WordsId words = 0;         // kept control words
  std::uint16_t list = 0;    // RTF \ls, counted from 1; 0 none
  std::uint8_t level = 0;    // in that list
  std::uint8_t nesting = 0;  // of the enclosing table, 0 none
  std::uint16_t stated = 0;  // ParaStated
  std::uint16_t reserved = 0;
  // What the source says of the paragraph before its text, where it goes on behind it, counted from
  // 1; 0 the same. Some readers take only that.
  ParaId opening = 0;
  bool operator==(const ParaFormat&) const = default;
};
static_assert(std::has_unique_object_representations_v<ParaFormat>);

enum class TabKind : std::uint8_t { Left, Right, Centre, Decimal, Bar };
struct TabStop {
  std::int32_t position = 0;  // twips
  TabKind kind = TabKind::Left;
  std::uint8_t leader = 0;  // 0 none, 1 dots, 2 hyphens, 3 underline, 4 thick line, 5 equal signs
  bool operator==(const TabStop&) const = default;
};
using TabStops = std::vector<TabStop>;  // in ascending order

std::uint64_t HashOf(const FontFace& face);
std::uint64_t HashOf(const TabStops& stops);

}  // namespace lumenote

// How text looks at a point of the source, and what elements change.
#pragma once
#include <cstdint>
#include <optional>

#include "document/formats/Formats.h"

namespace lumenote {

/// A length of a style sheet.
struct CssLength {
  enum class Unit : std::uint8_t {
    Twips,
    Size,  // times the font's size: em, per cent
  };
  double value = 0;
  Unit unit = Unit::Twips;

  /// Clipped to lengths that a paragraph may have.
  int Twips(const CharFormat& character) const;
};

/// What elements inherit from those around them.
struct Look {
  enum class Text : std::uint8_t {
    Shown,
    Hidden,
    Marker,  // of a list item, spelled out by a word processor
  };
  CharFormat character;
  ParaFormat paragraph;  // without indents on the left
  int left = 0;          // twips
  int first = 0;         // of the first line, from there
  Text text = Text::Shown;
  bool preserve = false;  // blanks and line ends count
  bool spaces = false;    // so do blanks, and no-break spaces are ordinary ones
};

/// What an element changes; what it leaves unsaid stays.
struct LookChange {
  struct LineSpacing {
    LineRule rule = LineRule::Single;
    CssLength length{};  // a multiple, in lines, under LineRule::Multiple
  };

  std::uint16_t on = 0;   // CharEffect
  std::uint16_t off = 0;  // stronger than `on`
  std::optional<Underline> underline;
  std::optional<FontId> font;
  std::optional<CssLength> size;
  std::optional<Colour> colour;
  std::optional<Colour> highlight;
  std::optional<CssLength> spacing;  // between characters
  std::optional<CssLength> offset;
  std::optional<KeptId> kept;  // of plain characters

  std::optional<Alignment> alignment;
  std::optional<CssLength> left;     // added to what is around
  std::optional<CssLength> padding;  // likewise
  std::optional<CssLength> right;    // likewise
  std::optional<CssLength> first;
  std::optional<LineSpacing> lines;
  std::optional<bool> rightToLeft;

  std::optional<std::uint8_t> nesting;  // of the table; without the indents around it

  std::optional<bool> preserve;
  bool spaces = false;
  std::optional<Look::Text> text;

  // Not inherited.
  std::optional<CssLength> above, below;
  std::optional<CssLength> width;
  bool unmarked = false;   // a list, or an item, without bullets or numbers
  int tabs = 0;            // that its content stands for
  bool item = false;       // a paragraph that is an item of a word processor's list
  bool mayBeItem = false;  // a paragraph that is one if it begins with a bullet or number and a gap

  void ApplyTo(Look& look) const;
};

}  // namespace lumenote

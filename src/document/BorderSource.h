// Borders and shading, as the source of paragraphs and table rows states them.
#pragma once
#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

#include "document/FormatTables.h"

namespace lumenote {

struct BorderLine {
  enum class Style : std::uint8_t { None, Single, Double, Dotted, Dashed };
  Style style = Style::None;
  int width = 15;  // twips
  int space = 0;   // twips to the text
  int colour = 0;  // in the note's colour table; 0: that of text
  bool operator==(const BorderLine&) const = default;
};

/// Colours are numbers in the note's colour table, where 0 is none.
struct Shading {
  int ground = 0;
  int pattern = 0;  // of dots over the ground, 0: that of text
  int share = 0;    // of the area that they cover, in 10,000ths
  bool operator==(const Shading&) const = default;
  bool IsSeen() const { return ground != 0 || share != 0; }
};

struct Borders {
  enum Side : std::size_t { Top, Left, Bottom, Right, Between };
  std::array<BorderLine, 5> sides{};
  Shading shading{};
  bool operator==(const Borders&) const = default;
  bool AreLined() const;
  bool AreSeen() const { return AreLined() || shading.IsSeen(); }
};

/// Of a paragraph with these kept words.
Borders ParagraphBorders(const FormatTables& tables, WordsId words);

/// What a row definition states.
struct RowFrame {
  bool heads = false;          // its table, on each page
  int left = 0;                // of the first cell, twips
  int gap = 0;                 // between a cell's edge and its text
  std::vector<Borders> cells;  // those that have an edge
  /// Whether any cell has a line.
  bool IsLined() const;
};
RowFrame RowFrameOf(const FormatTables& tables, ItemId items);

/// The colour of that number in the note's table; `other` if it has none.
Colour ColourOf(const KeptHead& head, int number, Colour other);

}  // namespace lumenote

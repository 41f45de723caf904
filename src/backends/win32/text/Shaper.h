// Glyphs for text, by Uniscribe.
#pragma once
#include <memory>
#include <string>
#include <vector>

#include "backends/win32/text/CharStyles.h"
#include "view/layout/ShownText.h"

namespace lumenote {

/// The glyphs of consecutive units in one format, font, script and direction;
/// in visual order. A run without a font shows nothing but blanks: tabs, line
/// breaks, hidden text.
struct GlyphRun {
  int start = 0;  // units of the layout's text
  int end = 0;
  CharId format = 0;
  SCRIPT_ANALYSIS analysis = {};
  std::shared_ptr<const GdiFont> font{};
  std::vector<WORD> clusters{};  // of each unit, a glyph of its cluster
  std::vector<WORD> glyphs{};
  std::vector<int> advances{};  // pixels
  std::vector<GOFFSET> offsets{};

  bool IsRightToLeft() const { return analysis.s.uBidiLevel % 2 == 1; }
  /// The glyphs of some of its units; no cluster may be parted.
  struct Range {
    std::size_t first;
    std::size_t end;
  };
  Range GlyphsOf(int from, int to) const;
};

/// What breaking lines needs to know of a unit.
struct ShapedUnit {
  int width = 0;             // pixels; the whole cluster's at its first unit
  bool stop = false;         // a caret may stand before it
  bool breakBefore = false;  // a line may start with it
};

/// Runs in text order, which cover the text.
struct ShapedText {
  std::vector<GlyphRun> runs;
  std::vector<ShapedUnit> units;
};

/// Itemises, shapes and places text; takes the glyphs that a font lacks from
/// linked ones.
class Shaper {
 public:
  Shaper(const Document& document, CharStyles& styles, const ShownText& text)
      : document_(document), styles_(styles), text_(text) {}

  /// `ends` are those of the cells of a row, or of the whole text: each has its own order of
  /// directions.
  ShapedText Shape(bool rightToLeft, const std::vector<int>& ends);

 private:
  /// Units of one part and item.
  struct Stretch {
    int start = 0;
    int end = 0;
    CharId format = 0;
    bool reduced = false;
    SCRIPT_ANALYSIS analysis = {};
  };

  std::vector<SCRIPT_ITEM> Itemise(int start, int end, bool rightToLeft) const;
  void FindBreaks(const std::vector<SCRIPT_ITEM>& items);
  bool MayBreakBefore(int index, bool soft) const;
  void ShapeItem(int start, int end, const SCRIPT_ANALYSIS& analysis);
  void ShapeStretch(const Stretch& stretch);
  void ShapePart(const Stretch& stretch);
  void AddBlanks(const Stretch& stretch);
  void ShapeWith(const Stretch& stretch, std::shared_ptr<const GdiFont> font, std::size_t next);
  void ShapeApart(const Stretch& stretch, const std::vector<bool>& missing,
                  const std::shared_ptr<const GdiFont>& font,
                  const std::shared_ptr<const GdiFont>& linked, std::size_t next);
  std::shared_ptr<const GdiFont> WantedFont(const Stretch& stretch) const {
    return styles_.Of(document_, stretch.format).FontOf(stretch.reduced);
  }
  GlyphRun Glyphs(const Stretch& stretch, std::shared_ptr<const GdiFont> font) const;
  std::vector<bool> MissingUnits(const GlyphRun& run) const;
  void Space(GlyphRun& run, int spacing) const;
  void Add(GlyphRun run);
  int StopAtOrBefore(int index, int start) const;
  const wchar_t* At(int index) const {
    return reinterpret_cast<const wchar_t*>(text_.text.data()) + index;
  }
  char16_t UnitAt(int index) const { return text_.text[static_cast<std::size_t>(index)]; }
  ShapedUnit& Unit(int index) { return shaped_.units[static_cast<std::size_t>(index)]; }

  const Document& document_;
  CharStyles& styles_;
  const ShownText& text_;
  ShapedText shaped_;
};

}  // namespace lumenote

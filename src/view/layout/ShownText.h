// The text of a span as it is shown, one unit for each of the document.
#pragma once
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "view/layout/Strokes.h"

namespace lumenote {

/// Stand-ins in a layout's text.
inline constexpr char16_t kShownLineBreak = u'\u2028';
inline constexpr char16_t kShownObject = u'\u25A1';
inline constexpr char16_t kShownHidden = u'\u200C';

/// Where the blanks at the end of a line begin, which hang beyond the edge that it is aligned at,
/// with what takes no room among them; `end` if there are none.
int FirstHanging(std::u16string_view text, int start, int end);

/// Units of one format and size, up to the start of the next part.
struct ShownPart {
  int start = 0;
  int end = 0;
  CharId format = 0;
  bool reduced = false;  // small letters shown as smaller capitals
};

/// Collects text, formats and decorations of a span for a layouter.
class ShownText {
 public:
  /// The look of a format; valid until its next call.
  using Looks = std::function<const CharLook&(CharId)>;

  ShownText(const Document& document, Position from, Position to, const Looks& lookOf);

  /// Inserts composed text; it takes the format of what is before it, else of what is behind.
  void Insert(int at, std::u16string_view composed);

  std::u16string text;
  std::vector<ShownPart> parts;
  std::vector<Decoration> decorations;
  std::vector<PieceRun> runs;

 private:
  void Append(std::u16string run, CharId format, const CharLook& look);
  void AppendParts(std::u16string_view run, CharId format, bool smallCapitals);

  CharId first_;  // the format at the span's start
};

}  // namespace lumenote

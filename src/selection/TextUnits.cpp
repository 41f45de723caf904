#include "selection/TextUnits.h"

#include <limits>

#include "base/Numbers.h"
#include "base/RuntimeError.h"

namespace lumenote {

namespace {

constexpr std::u16string_view kWordEnds = u"\r\n ,;:.?!";
constexpr std::u16string_view kSentenceEnds = u".?!";
constexpr std::u16string_view kParagraphEnds = u"\r\n";
// The first line number that overflows.
constexpr std::int32_t kLineLimit = std::numeric_limits<std::int16_t>::max() + 1;

void SelectBetween(RichTextSurface& surface, std::u16string_view delimiters) {
  surface.Span(delimiters, false, true);
  const Position start = surface.SelStart();
  surface.Span(delimiters, true, true);
  const Position end = surface.SelStart() + surface.SelLength();
  surface.SelStart(start);
  surface.SelLength(end - start);
}

}  // namespace

void SelectMot(RichTextSurface& surface) { SelectBetween(surface, kWordEnds); }

void SelectPhrase(RichTextSurface& surface) { SelectBetween(surface, kSentenceEnds); }

void SelectParagraphe(RichTextSurface& surface) {
  surface.Span(kParagraphEnds, false, true);
  const Position behindStart = surface.SelStart() + 1;
  surface.Span(kParagraphEnds, true, true);
  // The length is -1, which the surface refuses; the two spans above have done the work already.
  IgnoringErrors([&] { surface.SelLength(surface.SelStart() - behindStart); });
}

void SelectLigne(RichTextSurface& surface, bool& failed) {
  const Position caret = surface.SelStart();
  const std::int32_t line = surface.LineFromChar(caret, kLineLimit);
  const Position start = surface.LineIndex(ToInt16(std::int64_t{line}));
  if (start < 0) {
    failed = true;
    return;
  }
  const Position length = ToInt16(std::int64_t{surface.LineLength(caret)});
  surface.SelStart(start);
  surface.SelLength(length);
}

void SelectTout(RichTextSurface& surface) {
  surface.SelStart(0);
  surface.SelLength(surface.TextLength());
}

}  // namespace lumenote

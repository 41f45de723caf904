#include "selection/TextUnits.h"

#include "base/Numbers.h"
#include "base/RuntimeError.h"

namespace lumenote {

namespace {

constexpr std::u16string_view kWordEnds = u"\r\n ,;:.?!";
constexpr std::u16string_view kSentenceEnds = u".?!";
constexpr std::u16string_view kParagraphEnds = u"\r\n";

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
  const Position start = surface.LineIndex(ToInt16(std::int64_t{surface.LineFromChar(caret)}));
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

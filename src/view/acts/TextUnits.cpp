#include "view/acts/TextUnits.h"

#include <algorithm>
#include <string>
#include <string_view>

#include "base/Characters.h"
#include "surface/keys/Words.h"

namespace lumenote {

namespace {

// A sentence is looked for within this distance, whatever the length of its paragraph.
constexpr Position kReach = 2'000;

constexpr std::u16string_view kMarks = u".!?\u2026";
constexpr std::u16string_view kClosing = u".!?\u2026\"'\u2019\u201D\u00BB)]";
constexpr std::u16string_view kBlanks = u" \t\v\r\n\u00A0\u202F";

std::size_t Behind(std::u16string_view text, std::u16string_view passed, std::size_t from) {
  return std::min(text.find_first_not_of(passed, from), text.size());
}

/// Where the text goes on after the mark at `mark` and all that closes the sentence with it: in
/// French, a blank precedes the closing quotation mark.
std::size_t BehindMark(std::u16string_view text, std::size_t mark) {
  const std::size_t end = Behind(text, kClosing, mark);
  const std::size_t quote = Behind(text, kBlanks, end);
  return quote < text.size() && text[quote] == u'\u00BB' ? Behind(text, kClosing, quote) : end;
}

// A mark before a small letter, or without a blank after it, ends an abbreviation or stands in a
// number.
std::size_t SentenceEnd(std::u16string_view text, std::size_t start) {
  const auto isSmall = [](char16_t c) { return ToUpper(c) != c; };
  for (std::size_t at = text.find_first_of(kMarks, start); at != text.npos;) {
    const std::size_t end = BehindMark(text, at);
    const std::size_t next = Behind(text, kBlanks, end);
    if (next == text.size() || (next > end && !isSmall(text[next]))) return next;
    at = text.find_first_of(kMarks, end);
  }
  return text.size();
}

Selection ParagraphAt(const Document& document, Position offset) {
  const Position paragraph = document.ParagraphOf(offset);
  return {document.ParagraphStart(paragraph),
          std::min(document.ParagraphEnd(paragraph) + 2, document.Length())};
}

Selection SentenceAt(const Document& document, Position offset) {
  const Selection paragraph = ParagraphAt(document, offset);
  const Position from = document.SnapBackward(std::max(paragraph.start, offset - kReach));
  const Position to = document.SnapBackward(std::min(paragraph.end, offset + kReach));
  const std::u16string text = document.Text(from, to);
  const auto index = static_cast<std::size_t>(offset - from);
  std::size_t start = 0;
  std::size_t end = SentenceEnd(text, start);
  while (end <= index && end < text.size()) {
    start = end;
    end = SentenceEnd(text, start);
  }
  return {from + static_cast<Position>(start), from + static_cast<Position>(end)};
}

Selection WordAround(const Document& document, Position offset) {
  const Position start = PreviousWord(document, document.SnapForward(offset + 1));
  return {start, NextWord(document, start)};
}

// A run that spans leaves comes leaf by leaf.
Selection RunAround(const Document& document, Position offset) {
  const Selection paragraph = ParagraphAt(document, offset);
  Selection run;
  Selection found;
  CharId last = 0;
  document.ForEachRun(paragraph.start, paragraph.end, [&](Position at, TextView text, CharId id) {
    if (at == paragraph.start || id != last) run.start = at;
    run.end = at + static_cast<Position>(text.Size());
    last = id;
    if (run.start <= offset && offset < run.end) found = run;
  });
  return found;
}

}  // namespace

Selection UnitAt(const Document& document, Position offset, TextUnit unit) {
  const Position length = document.Length();
  if (unit == TextUnit::All) return {0, length};
  if (unit == TextUnit::Paragraph) return ParagraphAt(document, offset);
  if (offset == length) return {length, length};
  if (unit == TextUnit::Run) return RunAround(document, offset);
  if (unit == TextUnit::Word) return WordAround(document, offset);
  if (unit == TextUnit::Sentence) return SentenceAt(document, offset);
  return {document.SnapBackward(offset), document.SnapForward(offset + 1)};
}

}  // namespace lumenote

#include "view/pages/PrintedFootnotes.h"

#include <string>

#include "base/Numbers.h"
#include "document/Footnotes.h"
#include "document/NoteNumbers.h"

namespace lumenote {

namespace {

constexpr std::uint16_t kSize = 18;    // half-points
constexpr std::int32_t kIndent = 360;  // twips, behind the number
constexpr std::int32_t kSpace = 40;

}  // namespace

Document FootnotesIn(const Document& document, Selection range) {
  Document notes;
  NoteNumbers numbers;
  FormatTables& tables = notes.Formats();
  const ParaId paragraph =
      tables.paragraphs.Intern({.hangingIndent = kIndent, .spaceAfter = kSpace});
  const auto add = [&](Position at, const CharFormat& format, const FootnoteText& note) {
    std::u16string text = notes.Length() > 0 ? u"\r\n" : u"";
    if (note.numbered) text += NumberText(std::int64_t{numbers.At(document, at)}) + u".\t";
    const FontId font = tables.fonts.Intern(document.Formats().fonts[format.font]);
    const CharId look = tables.characters.Intern({.font = font, .size = kSize});
    Fragment fragment = PlainFragment(text + note.text, look, paragraph);
    fragment.mark = FinalMark{look, paragraph};
    notes.Replace(notes.Length(), notes.Length(), std::move(fragment));
  };
  document.ForEachRun(range.start, range.end, [&](Position start, TextView text, CharId id) {
    const CharFormat& format = document.Formats().characters[id];
    const auto note = FootnoteOf(document, format);
    const auto end = start + static_cast<Position>(text.Size());
    for (Position at = start; note && at < end; ++at) add(at, format, *note);
  });
  return notes;
}

}  // namespace lumenote

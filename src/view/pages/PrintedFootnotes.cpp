#include "view/pages/PrintedFootnotes.h"

#include <string>

#include "base/Numbers.h"
#include "base/Strings.h"
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
  const auto append = [&](FontId font, std::uint16_t effects, const std::u16string& text) {
    const CharId look = tables.characters.Intern({.font = font, .effects = effects, .size = kSize});
    Fragment fragment = PlainFragment(text, look, paragraph);
    fragment.mark = FinalMark{look, paragraph};
    notes.Replace(notes.Length(), notes.Length(), std::move(fragment));
  };
  const auto add = [&](Position at, const CharFormat& format, const FootnoteText& note) {
    const FontId font = tables.fonts.Intern(document.Formats().fonts[format.font]);
    std::u16string lead = notes.Length() > 0 ? u"\r\n" : u"";
    if (note.numbered) lead += NumberText(std::int64_t{numbers.At(document, at)}) + u".\t";
    append(font, 0, lead);
    for (std::size_t i = 0; i < note.runs.size(); ++i) {
      const std::size_t start = note.runs[i].start;
      const std::size_t end = i + 1 < note.runs.size() ? note.runs[i + 1].start : note.text.size();
      const std::u16string text = note.text.substr(start, end - start);
      append(font, note.runs[i].effects,
             note.numbered ? ReplaceEvery(text, u"\r\n", u"\r\n\t") : text);
    }
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

#include "view/acts/TextTips.h"

#include "base/Strings.h"
#include "document/Footnotes.h"
#include "document/Links.h"

namespace lumenote {

namespace {

std::u16string Shortened(std::u16string text) {
  constexpr std::size_t kMost = 1000;
  if (text.size() <= kMost) return text;
  return text.substr(0, IsLowSurrogate(text[kMost]) ? kMost - 1 : kMost) + u"…";
}

const CharFormat& FormatAt(const Document& document, Position position) {
  return document.Formats().characters[document.CharFormatAt(position)];
}

/// The note at the character, or just behind it: the mark before a note without a number is its
/// own.
std::optional<FootnoteText> NoteOfMark(const Document& document, Position at) {
  if (auto note = FootnoteOf(document, FormatAt(document, at))) return note;
  auto note = FootnoteOf(document, FormatAt(document, at + 1));
  return note && !note->numbered ? note : std::nullopt;
}

}  // namespace

std::u16string TipAt(TextPane& pane, PixelPoint point) {
  const Document& document = pane.Content();
  const Position at = pane.CharacterAt(point);
  if (at < 0) return {};
  if (const auto note = NoteOfMark(document, at)) return Shortened(note->text);
  const std::u16string link = LinkAt(document, at);
  if (link.starts_with(u'#')) return Shortened(link) + u"\r\nCtrl+clic pour y aller";
  return Shortened(link) + (MayOpen(link) ? u"\r\nCtrl+clic pour ouvrir" : u"");
}

}  // namespace lumenote

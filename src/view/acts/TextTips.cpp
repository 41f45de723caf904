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

}  // namespace

std::u16string TipAt(TextPane& pane, PixelPoint point) {
  const Document& document = pane.Content();
  const Position at = pane.CharacterAt(point);
  if (at < 0) return {};
  const FormatTables& tables = document.Formats();
  const CharFormat& format = tables.characters[document.CharFormatAt(at)];
  if (const auto note = FootnoteOf(document, format)) return Shortened(note->text);
  const std::u16string link = LinkOf(tables, format);
  return Shortened(link) + (MayOpen(link) ? u"\r\nCtrl+clic pour ouvrir" : u"");
}

}  // namespace lumenote

#include "document/Footnotes.h"

namespace lumenote {

bool IsFootnote(const FormatTables& tables, const CharFormat& format) {
  return tables.items[EmbeddedItem(tables, format)].kind == KeptItem::Kind::Note;
}

bool HasNumber(const FormatTables& tables, const CharFormat& footnote) {
  const KeptHead none;
  constexpr int kAnyPage = 1252;
  const KeptItem& item = tables.items[EmbeddedItem(tables, footnote)];
  return TextOfFootnote(item.source, SourcePages(none), kAnyPage).numbered;
}

std::optional<FootnoteText> FootnoteOf(const Document& document, const CharFormat& format) {
  const FormatTables& tables = document.Formats();
  if (!IsFootnote(tables, format)) return std::nullopt;
  const KeptItem& item = tables.items[EmbeddedItem(tables, format)];
  const SourcePages pages(tables.heads[document.Mark().head]);
  return TextOfFootnote(item.source, pages, pages.At(format, tables.fonts[format.font].charset));
}

}  // namespace lumenote

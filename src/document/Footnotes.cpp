#include "document/Footnotes.h"

namespace lumenote {

std::optional<FootnoteText> FootnoteOf(const Document& document, const CharFormat& format) {
  const FormatTables& tables = document.Formats();
  const Kept& kept = tables.kept[format.kept];
  if (kept.kind != Kept::Kind::Embedded) return std::nullopt;
  const KeptItem& item = tables.items[kept.self];
  if (item.kind != KeptItem::Kind::Note) return std::nullopt;
  const SourcePages pages(tables.heads[document.Mark().head]);
  return TextOfFootnote(item.source, pages, pages.At(format, tables.fonts[format.font].charset));
}

}  // namespace lumenote

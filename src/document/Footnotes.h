// Footnotes, which stand in the text as one character each.
#pragma once
#include <optional>

#include "document/Document.h"
#include "document/kept/NoteSource.h"

namespace lumenote {

/// Whether text of the format stands for a footnote.
bool IsFootnote(const FormatTables& tables, const CharFormat& format);
/// Whether a footnote's mark is its number; otherwise the mark is in the text.
bool HasNumber(const FormatTables& tables, const CharFormat& footnote);
/// The note that text of the format stands for; empty for other text.
std::optional<FootnoteText> FootnoteOf(const Document& document, const CharFormat& format);

}  // namespace lumenote

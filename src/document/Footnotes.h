// Footnotes, which stand in the text as one character each.
#pragma once
#include <optional>

#include "document/Document.h"
#include "document/kept/NoteSource.h"

namespace lumenote {

/// The note that text of the format stands for; empty for other text.
std::optional<FootnoteText> FootnoteOf(const Document& document, const CharFormat& format);

}  // namespace lumenote

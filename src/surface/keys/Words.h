// Words and paragraphs as the caret keys and a double click take them.
#pragma once
#include "document/Document.h"

namespace lumenote {

/// The start of the word behind `position`; blanks belong to the word before them, a French elided
/// article ("l'") is a word, a paragraph break is a stop of its own.
Position NextWord(const Document& document, Position position);
Position PreviousWord(const Document& document, Position position);
/// The word (or the run of blanks or signs) that holds the character at `position`.
Selection WordAt(const Document& document, Position position);

/// The nearest start of a paragraph behind `position` (the end of the document in the last one) or
/// before it.
Position NextParagraph(const Document& document, Position position);
Position PreviousParagraph(const Document& document, Position position);

}  // namespace lumenote

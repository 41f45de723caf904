// Word and paragraph boundaries for the caret keys and double clicks.
#pragma once
#include "document/Document.h"

namespace lumenote {

/// The start of the next (previous) word. Spaces belong to the word before them, a French elided
/// article ("l'") is a word, and a paragraph break is a stop of its own.
Position NextWord(const Document& document, Position position);
Position PreviousWord(const Document& document, Position position);
/// The word, or the run of spaces or of signs, that holds the character at `position`.
Selection WordAt(const Document& document, Position position);

/// The next start of a paragraph after `position` (or the end of the document), or the last one
/// before it.
Position NextParagraph(const Document& document, Position position);
Position PreviousParagraph(const Document& document, Position position);

}  // namespace lumenote

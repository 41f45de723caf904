// The units that assistive programs read a text by.
#pragma once
#include "document/Document.h"

namespace lumenote {

enum class TextUnit { Character, Run, Word, Sentence, Line, Paragraph, All };

/// The unit that holds the character at `offset`, which must lie in the document; any but a line,
/// which only a view knows. Units of one kind follow each other without gaps, but a character, word
/// or sentence at the document's end is empty. Characters and words are what the caret keys move
/// by, so the blanks after a word belong to it; a run has one format; a paragraph includes its
/// break.
Selection UnitAt(const Document& document, Position offset, TextUnit unit);

}  // namespace lumenote

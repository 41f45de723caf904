// Selecting a word, a sentence, a line, a paragraph or everything.
#pragma once
#include "platform/RichTextSurface.h"

namespace lumenote {

/// Extend both ends of the selection to the delimiters of words or of sentences, excluding these.
void SelectMot(RichTextSurface& surface);
void SelectPhrase(RichTextSurface& surface);
/// Extends the selection to the paragraph's text, without its break.
void SelectParagraphe(RichTextSurface& surface);
/// Selects the displayed line that holds the caret, without its break. A line number or length
/// beyond 16 bits raises Overflow and leaves the selection alone; `failed` is set if there is no
/// such line.
void SelectLigne(RichTextSurface& surface, bool& failed);
void SelectTout(RichTextSurface& surface);

}  // namespace lumenote

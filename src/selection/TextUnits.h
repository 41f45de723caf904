// Selecting a word, a sentence, a line, a paragraph or everything.
#pragma once
#include "platform/RichTextSurface.h"

namespace lumenote {

/// Widen the selection at both ends to the delimiters of words, or of sentences; the delimiters
/// stay outside.
void SelectMot(RichTextSurface& surface);
void SelectPhrase(RichTextSurface& surface);
/// Widens the selection to the paragraph's text, without its break.
void SelectParagraphe(RichTextSurface& surface);
/// Selects the line on screen that holds the caret, without a break. A line number or length beyond
/// 16 bits raises Overflow and leaves the selection; `failed` is set when there is no such line.
void SelectLigne(RichTextSurface& surface, bool& failed);
void SelectTout(RichTextSurface& surface);

}  // namespace lumenote

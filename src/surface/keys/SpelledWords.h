// The words of a text that can be looked up in a dictionary.
#pragma once
#include <vector>

#include "document/Document.h"

namespace lumenote {

/// The French words that `from`..`to` touches: letters, with apostrophes and hyphens between them.
/// Left out is what no French dictionary has: a single letter, words with digits, abbreviations,
/// text that its language says is not French, and italics, which botanists' Latin names are set in.
std::vector<Selection> SpelledWords(const Document& document, Position from, Position to);

/// The one that `position` touches; empty without one.
Selection SpelledWordAt(const Document& document, Position position);

}  // namespace lumenote

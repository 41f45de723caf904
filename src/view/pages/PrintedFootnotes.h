// The texts of footnotes, as paper shows them: behind the note.
#pragma once
#include "document/Document.h"

namespace lumenote {

/// A paragraph or more for each footnote in the range, with its number; empty if there is none.
Document FootnotesIn(const Document& document, Selection range);

}  // namespace lumenote

// Table rows on their way from one place to another.
#pragma once
#include "document/Document.h"

namespace lumenote {

/// A range of a document, which may be a snapshot.
struct CopiedText {
  Document document;
  Selection range;
};

/// A snapshot of the range, with the end of its last row if all the cells of that are in it: what
/// is selected with the mouse stops before the break that says what the row is.
CopiedText WithRowEnd(const Document& document, Selection range);

/// Whether the fragment is a table row, to its end, and perhaps more.
bool BeginsWithRow(const Fragment& fragment, const FormatTables& tables);

}  // namespace lumenote

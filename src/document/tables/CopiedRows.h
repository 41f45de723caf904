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

/// What of a fragment has to lie between paragraphs: the rows of tables in it.
struct CopiedRows {
  bool any = false;    // ends of rows, of tables that lie in no other one
  bool first = false;  // the fragment begins with one
  bool last = false;   // the fragment ends with a break
};
CopiedRows FindCopiedRows(const Fragment& fragment, const FormatTables& tables);

}  // namespace lumenote

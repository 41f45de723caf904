// Beginnings of pages, columns and sections, which an edit of the text behind them leaves in place.
#pragma once
#include "document/Document.h"

namespace lumenote {

/// The kept number of the character at `position`, or of the final mark, when a page, column or
/// section begins before that; 0 when none does, or before an earlier character of that number.
KeptId BeginningAt(const Document& document, Position position);

/// The fragment with the beginning that `beginning` tells of before its first character, or its
/// mark when it has no text. What begins there already takes its place.
Fragment WithBeginning(Fragment fragment, FormatTables& tables, KeptId beginning);

/// The fragment, or the number of a character's format, without the beginning that is before it.
Fragment WithoutBeginning(Fragment fragment, FormatTables& tables);
CharId WithoutBeginning(CharId format, FormatTables& tables);

}  // namespace lumenote

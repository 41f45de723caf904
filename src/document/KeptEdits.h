// What edits do to kept items.
//
// An item goes where its character goes, with three exceptions: what begins a page, column or
// section stays where it is, whatever happens to the text behind it; text typed inside a field
// joins it; and a paragraph that gets or loses its bullet leaves its list.
#pragma once
#include <functional>

#include "document/Document.h"

namespace lumenote {

/// The kept number of the character at `position`, or of the final mark, when a page, column or
/// section begins before that; 0 when none does, or before an earlier character of that number.
KeptId BeginningAt(const Document& document, Position position);

/// Whether a page, column or section begins before a character of that kept number.
bool BeginsPlace(const FormatTables& tables, KeptId kept);

/// The fragment with the beginning that `beginning` tells of before its first character, or its
/// mark when it has no text. What begins there already takes its place.
Fragment WithBeginning(Fragment fragment, FormatTables& tables, KeptId beginning);

/// The fragment, or the number of a character's format, without the beginning that is before it.
Fragment WithoutBeginning(Fragment fragment, FormatTables& tables);
CharId WithoutBeginning(CharId format, FormatTables& tables);

/// The kept number of what is typed at `position`: between two characters of a field it is in the
/// field too.
KeptId KeptOfTyping(const Document& document, Position position);

/// The character's format with `map` applied to the paragraph format of the table cell that it
/// ends, if it ends one.
CharId WithCellFormat(CharId format, FormatTables& tables, const Document::ParaMap& map);

/// Takes the paragraph out of its list.
void LeaveList(ParaFormat& format, FormatTables& tables);

}  // namespace lumenote

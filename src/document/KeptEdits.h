// What edits do to kept items.
//
// An item moves with its character, with three exceptions: the start of a page, column or section
// stays in place, whatever happens to the text after it; text typed inside a field joins the field;
// and a paragraph whose bullet is switched leaves its list. A font is set for all scripts.
#pragma once
#include <functional>

#include "document/Document.h"

namespace lumenote {

/// The kept number of the character, or final mark, at `position`, if a page, column or section
/// starts there; else 0. Also 0 if an earlier character of that number carries the start.
KeptId SectionStartAt(const Document& document, Position position);

/// Whether a page, column or section starts before a character of that kept number.
bool StartsSection(const FormatTables& tables, KeptId kept);

/// Adds the section start that `sectionStart` holds before the fragment's first character, or
/// before its mark if it has no text. A section start that is there already wins.
Fragment WithSectionStart(Fragment fragment, FormatTables& tables, KeptId sectionStart);

/// Removes the section start from the fragment, or from a character's format.
Fragment WithoutSectionStart(Fragment fragment, FormatTables& tables);
CharId WithoutSectionStart(CharId format, FormatTables& tables);

/// The kept number of text typed in place of a range: it joins a field if it is between two
/// characters of it.
KeptId KeptOfTyping(const Document& document, Selection range);

/// The format of a character with `map` applied to the paragraph format of the table cell that the
/// character ends, if any.
CharId WithCellFormat(CharId format, FormatTables& tables, const Document::ParaMap& map);

/// Removes what is said of single scripts from a run.
void LeaveScripts(CharFormat& format, FormatTables& tables);

/// Removes from a run what is said of the order of its size and directions.
void LeaveDirections(CharFormat& format, FormatTables& tables);

/// Removes the paragraph from its list.
void LeaveList(ParaFormat& format, FormatTables& tables);

}  // namespace lumenote

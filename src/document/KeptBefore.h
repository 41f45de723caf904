// What the source says before a character, when that one goes without it.
#pragma once
#include "document/Document.h"

namespace lumenote {

/// The number of what is kept before the character at `position`, or before the final mark; 0 when
/// that is nothing, or stands before the character ahead of it already.
KeptId KeptBefore(const Document& document, Position position);

/// The number of `format` with what `kept` has before its character put before all that is kept
/// there. What would become too long stays as it was.
CharId WithKeptBefore(FormatTables& tables, CharId format, KeptId kept);

/// The number of `format` with nothing before its character.
CharId WithoutKeptBefore(FormatTables& tables, CharId format);

}  // namespace lumenote

// Links in the text.
#pragma once
#include <string>
#include <string_view>

#include "document/Document.h"

namespace lumenote {

/// Where the innermost link around text of the format leads, "#name" within the note; empty outside
/// links.
std::u16string LinkOf(const FormatTables& tables, const CharFormat& format);
/// The same for the character at `position`.
std::u16string LinkAt(const Document& document, Position position);
/// Whether such a target may be handed to the desktop: a page, an address of mail, a file of
/// this machine that is not a program, as far as its name tells. Others may be commands.
bool MayOpen(std::u16string_view address);

}  // namespace lumenote

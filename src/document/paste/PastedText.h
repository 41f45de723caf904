// Text from another source, made to fit into a note.
#pragma once
#include <string_view>

#include "document/FormatTables.h"
#include "document/text/Fragment.h"

namespace lumenote {

/// Maps the numbers that the text's kept content has of its source's tables to those of the note
/// that `mark` ends. If the note's tables must grow for that, the result has a mark: the note's,
/// with a new head. `source` has the groups of the head `from`.
Fragment WithTablesOf(const FinalMark& mark, const Fragment& text, const KeptHead& from,
                      std::string_view source, FormatTables& tables);

}  // namespace lumenote

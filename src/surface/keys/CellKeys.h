// Where Tab moves the caret in a table.
#pragma once
#include <optional>

#include "document/Document.h"

namespace lumenote {

/// The start of the cell behind the one that holds a position, or of the text behind the table;
/// empty outside tables.
std::optional<Position> NextCell(const Document& document, Position position);
/// The start of the cell before it; that of its own cell if it is the table's first. Empty outside
/// tables.
std::optional<Position> PreviousCell(const Document& document, Position position);

}  // namespace lumenote

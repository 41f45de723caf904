// What a source says of a paragraph behind its text.
#pragma once
#include <optional>

#include "document/FormatTables.h"

namespace lumenote {

/// What makes the format `to` of `from`, as a format that says no more than that. Both are of the
/// same list and table. None if only \pard takes back what `from` says.
std::optional<ParaFormat> Addition(const ParaFormat& from, const ParaFormat& to,
                                   const FormatTables& tables);

}  // namespace lumenote

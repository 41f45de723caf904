// Formats as attributes of text, under the names of IAccessible2.
#pragma once
#include <QString>

#include "document/FormatTables.h"
#include "view/acts/AccessibleText.h"

namespace lumenote {

/// `misspelt`: the run is a misspelt word, or a part of one.
QString TextAttributes(const AccessibleText::Run& run, const FormatTables& formats, bool misspelt);

}  // namespace lumenote

// Formats as attributes of text, under the names of IAccessible2.
#pragma once
#include <QString>

#include "document/FormatTables.h"
#include "view/acts/AccessibleText.h"

namespace lumenote {

QString TextAttributes(const AccessibleText::Run& run, const FormatTables& formats);

}  // namespace lumenote

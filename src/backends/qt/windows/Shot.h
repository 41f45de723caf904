// Pictures of windows.
#pragma once
#include <QString>

#include "backends/qt/toolkit/WidgetRegistry.h"

namespace lumenote {

/// Draws the form's window, as it is now, into a PNG file; false when it cannot be written.
bool SaveWindowShot(const WidgetRegistry& widgets, const Element& form, const QString& path);

}  // namespace lumenote

// Screenshots of windows.
#pragma once
#include <QString>

#include "backends/qt/toolkit/WidgetRegistry.h"

namespace lumenote {

/// Renders the form's window to a PNG file; false if that cannot be written.
bool SaveWindowShot(const WidgetRegistry& widgets, const Element& form, const QString& path);

}  // namespace lumenote

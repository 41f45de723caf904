// Screenshots of windows.
#pragma once
#include <QString>

#include "backends/qt/toolkit/WidgetRegistry.h"

namespace lumenote {

/// Renders the form's window to a PNG file. Raises PathAccess if that cannot be written, or if the
/// picture would have more pixels than the largest screens.
void SaveWindowShot(const WidgetRegistry& widgets, const Element& form, const QString& path);

}  // namespace lumenote

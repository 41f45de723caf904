// The stacking order of the desktop's windows.
#pragma once
#include <QWidget>
#include <optional>

namespace lumenote {

/// Whether no other visible window is above this one, apart from the desktop's panels, according to
/// an X11 window manager; empty without one.
std::optional<bool> IsTopmostOnDesktop(const QWidget& window);

}  // namespace lumenote

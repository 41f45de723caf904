// The order of the desktop's windows.
#pragma once
#include <QWidget>
#include <optional>

namespace lumenote {

/// Whether no other window in sight stands above this one, the desktop's panels aside, as an X11
/// window manager tells; empty where nobody does.
std::optional<bool> IsTopmostOnDesktop(const QWidget& window);

}  // namespace lumenote

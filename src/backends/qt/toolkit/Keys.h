// Converts between Qt's keys and the surface's.
#pragma once
#include <QKeyEvent>
#include <optional>

#include "surface/keys/KeyStroke.h"

namespace lumenote {

/// Empty for a key that the surface has no name for, such as a lone modifier.
std::optional<KeyStroke> StrokeOf(const QKeyEvent& event);
/// The event of pressing (releasing) the key.
QKeyEvent EventOf(const KeyStroke& key, QEvent::Type type);
/// The text that the key types; empty for a command.
QString TypedText(const QKeyEvent& event);

}  // namespace lumenote

// Keys of the toolkit and of the surface.
#pragma once
#include <QKeyEvent>
#include <optional>

#include "surface/keys/KeyStroke.h"

namespace lumenote {

/// Empty for a key that the surface has no name for, a lone modifier above all.
std::optional<KeyStroke> StrokeOf(const QKeyEvent& event);
/// The event that pressing (or releasing) the key brings.
QKeyEvent EventOf(const KeyStroke& key, QEvent::Type type);
/// What the key types by itself; empty for a command.
QString TypedText(const QKeyEvent& event);
/// Whether an editor uses such a key, so that no shortcut of the host should take it.
bool IsEditingKey(const KeyStroke& key);

}  // namespace lumenote

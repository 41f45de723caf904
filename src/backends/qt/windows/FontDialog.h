// The desktop's font dialog.
#pragma once
#include <QWidget>
#include <optional>

#include "forms/values/FontChoice.h"

namespace lumenote {

/// Blocks until the user has chosen; empty when cancelled. Only what was changed is answered, so
/// that the rest of a mixed selection keeps its differences. `over` may be null.
std::optional<FontChoice> ShowFontDialog(const FontChoice& shown, QWidget* over);

}  // namespace lumenote

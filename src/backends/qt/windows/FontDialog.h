// The desktop's font dialog.
#pragma once
#include <QWidget>
#include <optional>

#include "forms/values/FontChoice.h"

namespace lumenote {

/// Blocks until the user has chosen; empty if cancelled. Returns only what was changed, so that the
/// rest of a mixed selection stays mixed. `over` may be null.
std::optional<FontChoice> ShowFontDialog(const FontChoice& shown, QWidget* over);

}  // namespace lumenote

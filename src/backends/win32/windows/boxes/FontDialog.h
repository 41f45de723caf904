// The system's font dialog.
#pragma once
#include <optional>

#include "backends/win32/system/System.h"
#include "forms/values/FontChoice.h"

namespace lumenote {

/// Blocks until the user has chosen; empty if cancelled. Returns only what was changed, so that the
/// rest of a mixed selection stays mixed. `over` may be null.
std::optional<FontChoice> ShowFontDialog(const FontChoice& shown, HWND over);

}  // namespace lumenote

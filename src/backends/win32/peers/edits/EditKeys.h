// What text boxes and combo boxes share: the native one-line edit.
#pragma once
#include <string>

#include "backends/win32/system/System.h"
#include "base/Position.h"
#include "surface/keys/KeyStroke.h"

namespace lumenote {

/// Whether a native edit uses the key itself.
bool IsEditKey(const KeyStroke& key);
Selection SelectedIn(HWND edit);
/// Changing the text puts the caret at its end; an equal text leaves it alone.
void ShowText(HWND edit, const std::u16string& text);

}  // namespace lumenote

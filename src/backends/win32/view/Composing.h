// Input methods of the system, by IMM32.
#pragma once
#include "backends/win32/system/System.h"
#include "view/acts/ViewInput.h"

namespace lumenote {

/// What a WM_IME_COMPOSITION says; `what` is its LPARAM.
ViewInput::Message CompositionOf(HWND window, LPARAM what);
/// Tells the input method where the caret is, so that its lists open there.
void PlaceComposition(HWND window, const PixelRect& caret);

}  // namespace lumenote

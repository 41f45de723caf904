// The library of UI Automation, which old systems lack.
#pragma once
#include "backends/win32/assist/UiaText.h"

namespace lumenote::uia {

/// Whether a program listens at present.
bool IsHeard();
/// Answers a WM_GETOBJECT; without a provider, tells that the window goes.
LRESULT Return(HWND window, WPARAM w, LPARAM l, IRawElementProviderSimple* provider);
void Raise(IRawElementProviderSimple* provider, EVENTID event);
/// What the system knows of any window.
HRESULT HostOf(HWND window, IRawElementProviderSimple** out);
/// Signs for a value that differs within a range, and for one that is not told.
HRESULT MixedValue(IUnknown** out);
HRESULT UnknownValue(IUnknown** out);

}  // namespace lumenote::uia

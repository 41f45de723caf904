#include "backends/win32/assist/UiaCore.h"

namespace lumenote::uia {

namespace {

/// A function of the library; null where it is missing. The library is never unloaded, since it
/// holds on to providers.
template <class Function>
Function* Find(const char* name) {
  static const HMODULE library =
      LoadLibraryExW(L"uiautomationcore.dll", nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32);
  if (!library) return nullptr;
  return reinterpret_cast<Function*>(reinterpret_cast<void*>(GetProcAddress(library, name)));
}

}  // namespace

bool IsHeard() {
  static const auto function = Find<BOOL WINAPI()>("UiaClientsAreListening");
  return function && function();
}

LRESULT Return(HWND window, WPARAM w, LPARAM l, IRawElementProviderSimple* provider) {
  static const auto function =
      Find<LRESULT WINAPI(HWND, WPARAM, LPARAM, IRawElementProviderSimple*)>(
          "UiaReturnRawElementProvider");
  return function ? function(window, w, l, provider) : 0;
}

void Raise(IRawElementProviderSimple* provider, EVENTID event) {
  static const auto function =
      Find<HRESULT WINAPI(IRawElementProviderSimple*, EVENTID)>("UiaRaiseAutomationEvent");
  if (function) function(provider, event);
}

HRESULT HostOf(HWND window, IRawElementProviderSimple** out) {
  static const auto function =
      Find<HRESULT WINAPI(HWND, IRawElementProviderSimple**)>("UiaHostProviderFromHwnd");
  return function ? function(window, out) : E_NOTIMPL;
}

HRESULT MixedValue(IUnknown** out) {
  static const auto function =
      Find<HRESULT WINAPI(IUnknown**)>("UiaGetReservedMixedAttributeValue");
  return function ? function(out) : E_NOTIMPL;
}

HRESULT UnknownValue(IUnknown** out) {
  static const auto function = Find<HRESULT WINAPI(IUnknown**)>("UiaGetReservedNotSupportedValue");
  return function ? function(out) : E_NOTIMPL;
}

}  // namespace lumenote::uia

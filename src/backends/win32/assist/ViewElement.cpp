#include "backends/win32/assist/ViewElement.h"

#include "backends/win32/assist/TextPattern.h"
#include "backends/win32/assist/UiaCore.h"

namespace lumenote {

namespace {

void Put(bool value, VARIANT& out) {
  out.vt = VT_BOOL;
  out.boolVal = value ? VARIANT_TRUE : VARIANT_FALSE;
}

}  // namespace

// Calls from other threads come to the one of the window.
HRESULT ViewElement::get_ProviderOptions(ProviderOptions* out) {
  *out = static_cast<ProviderOptions>(ProviderOptions_ServerSideProvider |
                                      ProviderOptions_UseComThreading);
  return S_OK;
}

HRESULT ViewElement::GetPatternProvider(PATTERNID id, IUnknown** out) {
  const bool known = id == uia::kTextPattern || id == uia::kTextPattern2;
  *out = known ? new (std::nothrow) TextPattern(*this) : nullptr;
  return known && !*out ? E_OUTOFMEMORY : S_OK;
}

HRESULT ViewElement::GetPropertyValue(PROPERTYID id, VARIANT* out) {
  *out = {};
  return view_.Ask([&](AccessibleText&) -> HRESULT {
    switch (id) {
      case uia::kControlType:
        out->vt = VT_I4;
        out->lVal = uia::kDocumentControl;
        break;
      case uia::kName:
        out->vt = VT_BSTR;
        out->bstrVal = BstrOf(view_.Name());
        break;
      case uia::kIsKeyboardFocusable:
        Put(IsWindowEnabled(view_.Handle()), *out);
        break;
      case uia::kHasKeyboardFocus:
        Put(GetFocus() == view_.Handle(), *out);
        break;
    }
    return S_OK;
  });
}

HRESULT ViewElement::get_HostRawElementProvider(IRawElementProviderSimple** out) {
  *out = nullptr;
  return view_.Ask([&](AccessibleText&) { return uia::HostOf(view_.Handle(), out); });
}

}  // namespace lumenote

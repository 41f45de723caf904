// The control's dual interface, for C++ hosts that call it through the vtable.
#pragma once
#include <oaidl.h>

#include "Identity.h"
#include "Members.h"

namespace lumenote {

/// `put_pNomAppli(BSTR)`, ..., `get_pStrOrchm(BSTR*)`, whose result the caller frees, and
/// `ShowMicroEdit(mode)`. A null BSTR is the empty string. On failure the thread's IErrorInfo has
/// the French description.
struct ICoBxRtf : IDispatch {
#define LUMENOTE_WRITE(id, name, help) virtual HRESULT STDMETHODCALLTYPE put_##name(BSTR text) = 0;
#define LUMENOTE_READ(id, name, help) virtual HRESULT STDMETHODCALLTYPE get_##name(BSTR* text) = 0;
#define LUMENOTE_METHOD(id, name, help) virtual HRESULT STDMETHODCALLTYPE name(LONG mode) = 0;
  LUMENOTE_MEMBERS(LUMENOTE_WRITE, LUMENOTE_READ, LUMENOTE_METHOD)
#undef LUMENOTE_WRITE
#undef LUMENOTE_READ
#undef LUMENOTE_METHOD
};

}  // namespace lumenote

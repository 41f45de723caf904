// The members that hosts use, through the vtable and by name.
#pragma once
#include <memory>

#include "../support/Bstr.h"
#include "../support/ComPtr.h"
#include "../support/Errors.h"
#include "../typelib/ICoBxRtf.h"
#include "lumenote/CoBxRtf.h"

namespace lumenote {

/// Passes each member on to the control. Calls by name go through the type library to the vtable,
/// which converts arguments, fills in those left out, and refuses to read what is only written.
class HostMembers : public ICoBxRtf {
 public:
  HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override;
  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT index, LCID, ITypeInfo** description) override;
  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, OLECHAR** names, UINT count, LCID,
                                          DISPID* ids) override;
  HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID, LCID, WORD flags, DISPPARAMS* arguments,
                                   VARIANT* result, EXCEPINFO* error, UINT* wrong) override;

#define LUMENOTE_WRITE(id, name, help)                                    \
  HRESULT STDMETHODCALLTYPE put_##name(BSTR text) override {              \
    return Call([&](CoBxRtf& control) { control.name(FromBstr(text)); }); \
  }
#define LUMENOTE_READ(id, name, help)                                       \
  HRESULT STDMETHODCALLTYPE get_##name(BSTR* text) override {               \
    if (!text) return E_POINTER;                                            \
    *text = nullptr;                                                        \
    return Call([&](CoBxRtf& control) { *text = ToBstr(control.name()); }); \
  }
#define LUMENOTE_METHOD(id, name, help)                         \
  HRESULT STDMETHODCALLTYPE name(LONG mode) override {          \
    return Call([&](CoBxRtf& control) { control.name(mode); }); \
  }
  LUMENOTE_MEMBERS(LUMENOTE_WRITE, LUMENOTE_READ, LUMENOTE_METHOD)
#undef LUMENOTE_WRITE
#undef LUMENOTE_READ
#undef LUMENOTE_METHOD

 protected:
  HostMembers();
  void* Interface(REFIID id);
  /// Closes an open editor as the user would.
  void Retire();

 private:
  /// The object outlives the call even when the host lets go of it meanwhile. One that has retired
  /// has no control any more.
  template <class Body>
  HRESULT Call(Body body) {
    if (!control_) return CO_E_OBJNOTCONNECTED;
    const ComPtr<ICoBxRtf> alive(this);
    return Guarded([&] {
      body(*control_);
      return S_OK;
    });
  }

  std::unique_ptr<CoBxRtf> control_;
  const ComPtr<ITypeInfo> description_;
};

}  // namespace lumenote

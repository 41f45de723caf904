// The control keeps no properties in the host's document.
#pragma once
#include "../support/Ole.h"
#include "../typelib/Identity.h"

namespace lumenote {

class SavesNothing : public IPersistStreamInit {
 public:
  HRESULT STDMETHODCALLTYPE GetClassID(CLSID* id) override {
    if (!id) return E_POINTER;
    *id = kClassId;
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE IsDirty() override { return S_FALSE; }
  HRESULT STDMETHODCALLTYPE InitNew() override { return S_OK; }
  HRESULT STDMETHODCALLTYPE Load(IStream*) override { return S_OK; }
  HRESULT STDMETHODCALLTYPE Save(IStream*, BOOL) override { return S_OK; }
  HRESULT STDMETHODCALLTYPE GetSizeMax(ULARGE_INTEGER* size) override {
    if (!size) return E_POINTER;
    size->QuadPart = 0;
    return S_OK;
  }

 protected:
  void* Interface(REFIID id) {
    const bool own = IsEqualIID(id, IID_IPersistStreamInit) || IsEqualIID(id, IID_IPersist);
    return own ? static_cast<IPersistStreamInit*>(this) : nullptr;
  }
};

}  // namespace lumenote

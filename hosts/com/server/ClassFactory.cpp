#include "ClassFactory.h"

#include "../object/ControlObject.h"

namespace lumenote {

void* ControlFactory::Interface(REFIID id) {
  return IsEqualIID(id, IID_IClassFactory) ? static_cast<IClassFactory*>(this) : nullptr;
}

HRESULT ControlFactory::CreateInstance(IUnknown* outer, REFIID id, void** out) {
  if (!out) return E_POINTER;
  *out = nullptr;
  if (outer) return CLASS_E_NOAGGREGATION;
  return Guarded([&] {
    const auto made = ComPtr<ControlObject>::Owning(new ControlObject);
    return made->QueryInterface(id, out);
  });
}

HRESULT ControlFactory::LockServer(BOOL lock) {
  lock ? CodeInUse::Add() : CodeInUse::Remove();
  return S_OK;
}

}  // namespace lumenote

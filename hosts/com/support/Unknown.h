// Reference counting for objects that hosts hold.
#pragma once
#include <atomic>

#include "Module.h"

namespace lumenote {

/// An object of some parts, each of which implements one or more interfaces and has a member
/// `void* Interface(REFIID)`, null for interfaces that are not its own. The first part is the
/// object's identity. Made with one reference; deletes itself with the last. The DLL stays loaded
/// until the parts are destroyed.
template <class First, class... Others>
class Unknown : ModuleLock, public First, public Others... {
 public:
  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** out) final {
    if (!out) return E_POINTER;
    *out = IsEqualIID(id, IID_IUnknown) ? Identity() : Find(id);
    if (!*out) return E_NOINTERFACE;
    AddRef();
    return S_OK;
  }
  ULONG STDMETHODCALLTYPE AddRef() final { return ++references_; }
  ULONG STDMETHODCALLTYPE Release() final {
    const ULONG left = --references_;
    if (left == 0) Destroy();
    return left;
  }

 protected:
  virtual ~Unknown() = default;

 private:
  // References that others take and drop meanwhile must not destroy the object once more.
  void Destroy() {
    references_ = 1;
    delete this;
  }
  void* Identity() { return static_cast<First*>(this); }
  void* Find(REFIID id) {
    void* found = First::Interface(id);
    ((found = found ? found : Others::Interface(id)), ...);
    return found;
  }

  std::atomic<ULONG> references_ = 1;
};

}  // namespace lumenote

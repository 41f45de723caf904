// Reference counting for objects that hosts hold.
#pragma once
#include <atomic>

#include "Ole.h"
#include "backends/win32/system/CodeInUse.h"

namespace lumenote {

/// An object of some parts, each of which implements one or more interfaces and has a member
/// `void* Interface(REFIID)`, null for interfaces that are not its own. The first part is the
/// object's identity. Made with one reference. When the last one goes, it retires, if the first
/// part has a member `Retire`, and is then deleted. The DLL stays loaded until the parts are
/// destroyed.
template <class First, class... Others>
class Unknown : CodeInUse, public First, public Others... {
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
    if (left == 0) LetGo();
    return left;
  }

 protected:
  virtual ~Unknown() = default;

 private:
  // The host's events may run while it retires; what takes a reference there finds a whole object.
  void LetGo() {
    if (retired_) {
      delete this;
      return;
    }
    retired_ = true;
    references_ = 1;
    if constexpr (requires { First::Retire(); }) First::Retire();
    Release();
  }
  void* Identity() { return static_cast<First*>(this); }
  void* Find(REFIID id) {
    void* found = First::Interface(id);
    ((found = found ? found : Others::Interface(id)), ...);
    return found;
  }

  std::atomic<ULONG> references_ = 1;
  bool retired_ = false;
};

}  // namespace lumenote

// Objects that the system calls back.
#pragma once
#include <memory>

#include "backends/win32/system/CodeInUse.h"
#include "backends/win32/system/System.h"

// After the system's own header.
#include <ole2.h>

namespace lumenote {

/// An object with one interface beside IUnknown. Made with one reference; deletes itself with the
/// last.
template <class Interface>
class ComObject : private CodeInUse, public Interface {
 public:
  ComObject() = default;
  ComObject(const ComObject&) = delete;
  ComObject& operator=(const ComObject&) = delete;

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** out) override {
    if (!out) return E_POINTER;
    const bool known = id == IID_IUnknown || id == __uuidof(Interface);
    *out = known ? static_cast<Interface*>(this) : nullptr;
    if (!known) return E_NOINTERFACE;
    AddRef();
    return S_OK;
  }
  ULONG STDMETHODCALLTYPE AddRef() final {
    return static_cast<ULONG>(InterlockedIncrement(&references_));
  }
  ULONG STDMETHODCALLTYPE Release() final {
    const LONG left = InterlockedDecrement(&references_);
    if (left == 0) delete this;
    return static_cast<ULONG>(left);
  }

 protected:
  virtual ~ComObject() = default;

 private:
  LONG references_ = 1;
};

/// Releases the first reference of an object when it goes.
struct ComRelease {
  void operator()(IUnknown* object) const { object->Release(); }
};
template <class Object>
using ComOwner = std::unique_ptr<Object, ComRelease>;

/// One more reference to an object.
template <class Object>
ComOwner<Object> Shared(Object& object) {
  object.AddRef();
  return ComOwner<Object>(&object);
}

/// OLE of the thread for as long as this lives.
class OleScope {
 public:
  OleScope() : begun_(SUCCEEDED(OleInitialize(nullptr))) {}
  ~OleScope() {
    if (begun_) OleUninitialize();
  }
  OleScope(const OleScope&) = delete;
  OleScope& operator=(const OleScope&) = delete;

 private:
  bool begun_;
};

}  // namespace lumenote

// An owned reference to a COM object.
#pragma once
#include <unknwn.h>
#include <utility>

namespace lumenote {

/// Releases what it holds; copies are further references.
template <class Interface>
class ComPtr {
 public:
  ComPtr() = default;
  /// Adds a reference of its own.
  explicit ComPtr(Interface* object) : object_(object) {
    if (object_) object_->AddRef();
  }
  /// Takes over the reference that the caller has.
  static ComPtr Owning(Interface* object) {
    ComPtr owner;
    owner.object_ = object;
    return owner;
  }
  ComPtr(const ComPtr& other) : ComPtr(other.object_) {}
  ComPtr(ComPtr&& other) noexcept : object_(std::exchange(other.object_, nullptr)) {}
  ComPtr& operator=(ComPtr other) noexcept {
    std::swap(object_, other.object_);
    return *this;
  }
  ~ComPtr() {
    if (object_) object_->Release();
  }

  Interface* Get() const { return object_; }
  Interface* operator->() const { return object_; }
  explicit operator bool() const { return object_ != nullptr; }

  /// For functions that return a new reference through a parameter; drops what was held.
  Interface** Out() {
    *this = ComPtr();
    return &object_;
  }
  void** OutVoid() { return reinterpret_cast<void**>(Out()); }

  /// Stores a further reference, or null, in a caller's parameter; E_POINTER if that is null.
  HRESULT CopyTo(Interface** out) const {
    if (!out) return E_POINTER;
    *out = object_;
    if (object_) object_->AddRef();
    return S_OK;
  }

 private:
  Interface* object_ = nullptr;
};

}  // namespace lumenote

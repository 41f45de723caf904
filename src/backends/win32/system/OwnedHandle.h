// Owners of what the system hands out.
#pragma once
#include <utility>

namespace lumenote {

/// Owns a handle, or none; `Free` gives it back.
template <class Handle, class Free>
class OwnedHandle {
 public:
  explicit OwnedHandle(Handle handle = nullptr) : handle_(handle) {}
  OwnedHandle(OwnedHandle&& other) noexcept : handle_(std::exchange(other.handle_, nullptr)) {}
  OwnedHandle& operator=(OwnedHandle&& other) noexcept {
    std::swap(handle_, other.handle_);
    return *this;
  }
  ~OwnedHandle() {
    if (handle_) Free()(handle_);
  }

  Handle Get() const { return handle_; }
  explicit operator bool() const { return handle_ != nullptr; }

 private:
  Handle handle_;
};

}  // namespace lumenote

// The single instance of a window class: made on first use, gone after it has unloaded.
#pragma once
#include <functional>
#include <memory>

#include "forms/Form.h"

namespace lumenote {

template <class Window>
class Instance {
 public:
  explicit Instance(std::function<std::unique_ptr<Window>()> make) : make_(std::move(make)) {}
  /// Closes the window as the user would if it is still open.
  ~Instance() {
    if (window_) window_->Unload();
  }

  /// The window, made when there is none; it may not be loaded yet.
  Window& Get() {
    if (!window_) {
      window_ = make_();
      window_->Released = [this] { window_.reset(); };
    }
    return *window_;
  }
  /// Null unless the window is loaded.
  Window* Loaded() const { return window_ && window_->IsLoaded() ? window_.get() : nullptr; }

 private:
  std::function<std::unique_ptr<Window>()> make_;
  std::unique_ptr<Window> window_;
};

}  // namespace lumenote

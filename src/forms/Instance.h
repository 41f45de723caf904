// The instance of a window class: made on first use, gone after it has unloaded.
#pragma once
#include <algorithm>
#include <functional>
#include <memory>
#include <vector>

#include "forms/Form.h"

namespace lumenote {

/// One window at a time. One that has been taken down while its own events run waits for them to
/// return, beside the next one.
template <class Window>
class Instance {
 public:
  /// `holder`: the form that the instance is a part of; null for none.
  explicit Instance(std::function<std::unique_ptr<Window>()> make, Form* holder = nullptr)
      : make_(std::move(make)), holder_(holder) {}
  /// Closes the window as the user would if it is still open.
  ~Instance() {
    if (Window* window = Loaded()) window->Unload();
  }
  Instance(const Instance&) = delete;
  Instance& operator=(const Instance&) = delete;

  /// The window, made when there is none; it may not be loaded yet.
  Window& Get() {
    if (windows_.empty() || windows_.back()->IsUnloaded()) Make();
    return *windows_.back();
  }
  /// Null unless the window is loaded.
  Window* Loaded() const {
    return !windows_.empty() && windows_.back()->IsLoaded() ? windows_.back().get() : nullptr;
  }

  /// `owner`, of which this is a part, stays until the windows that are still there have gone.
  void KeepAlive(const std::shared_ptr<void>& owner) {
    for (const auto& window : windows_)
      window->Released = [owner, released = std::move(window->Released)] { released(); };
  }

 private:
  void Make() {
    Window& window = *windows_.emplace_back(make_());
    window.Holder(holder_);
    window.Released = [this, &window] { Destroy(window); };
  }
  void Destroy(const Window& window) {
    const auto place = std::find_if(windows_.begin(), windows_.end(),
                                    [&](const auto& kept) { return kept.get() == &window; });
    const std::unique_ptr<Window> gone = std::move(*place);
    windows_.erase(place);
  }

  std::function<std::unique_ptr<Window>()> make_;
  Form* holder_;
  std::vector<std::unique_ptr<Window>> windows_;  // the last one is the current one
};

}  // namespace lumenote

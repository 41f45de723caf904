// The single instance of a window class: created on first use, destroyed after it has unloaded.
#pragma once
#include <algorithm>
#include <functional>
#include <memory>
#include <vector>

#include "forms/Form.h"

namespace lumenote {

/// At most one window is current. A closed one whose events have not returned yet is kept beside it
/// until they have.
template <class Window>
class Instance {
 public:
  /// `holder` is the form that the instance is a part of, or null.
  explicit Instance(std::function<std::unique_ptr<Window>()> make, Form* holder = nullptr)
      : make_(std::move(make)), holder_(holder) {}
  /// Closes an open window as the user would.
  ~Instance() {
    if (Window* window = Loaded()) window->Unload();
  }
  Instance(const Instance&) = delete;
  Instance& operator=(const Instance&) = delete;

  /// The current window, created if needed; it may not be loaded yet.
  Window& Get() {
    if (windows_.empty() || windows_.back()->IsUnloaded()) Make();
    return *windows_.back();
  }
  /// Null unless the current window is loaded.
  Window* Loaded() const {
    return !windows_.empty() && windows_.back()->IsLoaded() ? windows_.back().get() : nullptr;
  }

  /// Keeps `owner`, which this is a part of, alive until all remaining windows are destroyed.
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
  std::vector<std::unique_ptr<Window>> windows_;  // the last one is current
};

}  // namespace lumenote

// Maps elements to the windows that show them.
#pragma once
#include <unordered_map>

#include "backends/win32/toolkit/Window.h"

namespace lumenote {

class Element;

/// Maintained by the peers; owns nothing.
class WindowRegistry {
 public:
  void Add(const Element& element, Window& window) { windows_[&element] = &window; }
  void Remove(const Element& element) { windows_.erase(&element); }

  /// Null if the element is not shown, or not by a `Kind`.
  template <class Kind = Window>
  Kind* Find(const Element& element) const {
    const auto found = windows_.find(&element);
    return found == windows_.end() ? nullptr : dynamic_cast<Kind*>(found->second);
  }

 private:
  std::unordered_map<const Element*, Window*> windows_;
};

}  // namespace lumenote

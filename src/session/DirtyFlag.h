// Whether a note has unsaved changes.
#pragma once
#include <functional>

namespace lumenote {

/// Reads and is assigned like a bool, and reports each assignment to the keeper of the recovery
/// copy.
class DirtyFlag {
 public:
  DirtyFlag() = default;
  DirtyFlag(const DirtyFlag& other) : dirty_(other.dirty_) {}
  DirtyFlag& operator=(const DirtyFlag&) = delete;
  operator bool() const { return dirty_; }
  DirtyFlag& operator=(bool dirty) {
    dirty_ = dirty;
    if (Assigned) Assigned(dirty);
    return *this;
  }

  std::function<void(bool dirty)> Assigned;

 private:
  bool dirty_ = false;
};

}  // namespace lumenote

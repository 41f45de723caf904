// Controls that share a name and differ in their index.
#pragma once
#include <memory>
#include <string>
#include <vector>

#include "base/RuntimeError.h"
#include "forms/Control.h"

namespace lumenote {

/// Elements 0 to size - 1, each named with its index in parentheses.
template <class C>
class ControlArray {
 public:
  explicit ControlArray(std::string name) : name_(std::move(name)) {}

  /// Constructs the next element; its name precedes `arguments`.
  template <class... Arguments>
  C& Add(Container& container, Arguments&&... arguments) {
    std::string name = name_ + "(" + std::to_string(controls_.size()) + ")";
    controls_.push_back(
        std::make_unique<C>(container, std::move(name), std::forward<Arguments>(arguments)...));
    controls_.back()->Announce();
    return *controls_.back();
  }
  /// Removes the elements from index `count` on.
  void Truncate(int count) { controls_.resize(static_cast<std::size_t>(count)); }

  int Count() const { return static_cast<int>(controls_.size()); }
  /// Raises NoSuchElement (340) for a missing index.
  C& operator()(int index) const {
    if (index < 0 || index >= Count()) throw RuntimeError(ErrorNumber::NoSuchElement);
    return *controls_[static_cast<std::size_t>(index)];
  }

 private:
  std::string name_;
  std::vector<std::unique_ptr<C>> controls_;
};

}  // namespace lumenote

// Maps elements to the widgets or actions that show them.
#pragma once
#include <QObject>
#include <unordered_map>

namespace lumenote {

class Element;

/// Maintained by the peers; owns nothing.
class WidgetRegistry {
 public:
  void Add(const Element& element, QObject& object) { objects_[&element] = &object; }
  void Remove(const Element& element) { objects_.erase(&element); }

  /// Null if the element is not shown, or not by a `Kind`.
  template <class Kind>
  Kind* Find(const Element& element) const {
    const auto found = objects_.find(&element);
    return found == objects_.end() ? nullptr : dynamic_cast<Kind*>(found->second);
  }

 private:
  std::unordered_map<const Element*, QObject*> objects_;
};

}  // namespace lumenote

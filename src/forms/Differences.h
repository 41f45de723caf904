// Collects where native windows differ from the form they show; for tests.
#pragma once
#include <string>
#include <vector>

#include "forms/Element.h"

namespace lumenote {

class DifferenceList {
 public:
  /// Records the member unless it is `same`.
  void Check(const Element& element, const char* member, bool same) {
    if (!same) lines_.push_back(element.Name() + "." + member);
  }
  void Add(const Element& element, const std::string& what) {
    lines_.push_back(element.Name() + ": " + what);
  }
  const std::vector<std::string>& Lines() const { return lines_; }

 private:
  std::vector<std::string> lines_;
};

}  // namespace lumenote

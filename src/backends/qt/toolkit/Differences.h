// Where widgets differ from the form that they show; for tests.
#pragma once
#include <string>
#include <vector>

#include "forms/Element.h"

namespace lumenote {

class DifferenceList {
 public:
  /// Notes the member if it is not as it should be.
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

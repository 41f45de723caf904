// Numbers of a table's entries, with new ones for those that it lacks.
#pragma once
#include <unordered_set>

namespace lumenote {

class EntryNumbers {
 public:
  bool Contains(int number) const { return taken_.contains(number); }
  void Take(int number) { taken_.insert(number); }
  /// Takes that number if it is free, otherwise the lowest free one from 1 on.
  int TakeFree(int wanted) {
    if (taken_.insert(wanted).second) return wanted;
    while (!taken_.insert(lowest_).second) ++lowest_;
    return lowest_;
  }

 private:
  std::unordered_set<int> taken_;
  int lowest_ = 1;  // all below it, from 1 on, are taken
};

}  // namespace lumenote

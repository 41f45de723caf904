// A table of chains: lists whose values are interned one by one.
#pragma once
#include <cstdint>
#include <utility>
#include <vector>

#include "document/formats/InternTable.h"

namespace lumenote {

/// Each value of a chain has the number of the `next` one, so the number of its first value stands
/// for a chain; 0 is the empty one. Chains that end alike share their ends. When the table is full
/// a new chain ends where it has no room.
template <class T>
class ChainTable {
 public:
  ChainTable() { values_.Intern({}); }

  const T& operator[](std::uint32_t number) const { return values_[number]; }
  std::uint32_t Size() const { return values_.Size(); }

  /// The number of the chain of `values` with the chain `behind` at its end.
  std::uint32_t Chain(std::vector<T> values, std::uint32_t behind = 0) {
    for (; !values.empty(); values.pop_back()) {
      values.back().next = behind;
      behind = values_.Intern(std::move(values.back()));
    }
    return behind;
  }
  std::vector<T> List(std::uint32_t first) const {
    std::vector<T> values;
    ForEach(first, [&](const T& value) { values.push_back(value); });
    return values;
  }

  /// Visits the values from `first` on, as far as before `end`.
  template <class Visit>
  void ForEach(std::uint32_t first, std::uint32_t end, Visit visit) const {
    for (std::uint32_t i = first; i != end; i = values_[i].next) visit(values_[i]);
  }
  template <class Visit>
  void ForEach(std::uint32_t first, Visit visit) const {
    ForEach(first, 0, visit);
  }
  template <class Test>
  bool Any(std::uint32_t first, Test test) const {
    std::uint32_t i = first;
    while (i != 0 && !test(values_[i])) i = values_[i].next;
    return i != 0;
  }

 private:
  InternTable<T> values_;
};

}  // namespace lumenote

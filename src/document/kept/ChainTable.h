// A table of chains: linked lists whose nodes are interned.
#pragma once
#include <cstdint>
#include <utility>
#include <vector>

#include "document/formats/InternTable.h"

namespace lumenote {

/// Each node holds the number of the `next` one, so a chain is identified by the number of its
/// first node; 0 is the empty chain. Chains share equal tails. When the table is full, a new chain
/// is cut off.
template <class T>
class ChainTable {
 public:
  ChainTable() { values_.Intern({}); }

  const T& operator[](std::uint32_t number) const { return values_[number]; }
  std::uint32_t Size() const { return values_.Size(); }

  /// The number of the chain of `values` followed by the chain `behind`.
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

  /// Visits the values from `first` up to, not including, `end`.
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

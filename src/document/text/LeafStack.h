// A stack of removed text.
#pragma once
#include <vector>

#include "document/text/LeafList.h"

namespace lumenote {

/// Entries are packed end to end: thousands of small ones cost little more than their units, a
/// large one no more than its list of leaves. An entry is popped by its length, last in, first out.
class LeafStack {
 public:
  /// On a failed allocation both leave the stack unchanged.
  void Push(const LeafList& piece);
  LeafList Pop(Position length);
  void Clear() { lists_.clear(); }

 private:
  std::vector<LeafList> lists_;  // none is empty; more than one if a single list would be too long
};

}  // namespace lumenote

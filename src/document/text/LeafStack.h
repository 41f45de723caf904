// A stack of removed pieces of text.
#pragma once
#include <vector>

#include "document/text/LeafList.h"

namespace lumenote {

/// Pieces are packed end to end, so thousands of small ones cost little more than their units and a
/// large one no more than its list of leaves. What was pushed last is popped first, by its length.
class LeafStack {
 public:
  /// Both leave the stack as it was when an allocation fails.
  void Push(const LeafList& piece);
  LeafList Pop(Position length);
  void Clear() { lists_.clear(); }

 private:
  std::vector<LeafList> lists_;  // none is empty; more than one when a list would become too long
};

}  // namespace lumenote

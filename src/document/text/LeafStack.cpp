#include "document/text/LeafStack.h"

namespace lumenote {

void LeafStack::Push(const LeafList& piece) {
  if (piece.Empty()) return;
  if (lists_.empty() || piece.Length() > LeafList::kMax - lists_.back().Length()) {
    lists_.push_back(piece);
  } else {
    LeafList& last = lists_.back();
    last.Replace(last.Length(), last.Length(), piece);
  }
}

LeafList LeafStack::Pop(Position length) {
  if (length == 0) return {};
  LeafList& last = lists_.back();
  LeafList piece = last.Replace(last.Length() - length, last.Length(), {});
  if (last.Empty()) lists_.pop_back();
  return piece;
}

}  // namespace lumenote

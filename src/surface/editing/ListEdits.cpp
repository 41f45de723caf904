#include "surface/editing/ListEdits.h"

#include <algorithm>

#include "surface/editing/MergeEdit.h"

namespace lumenote {

void ListEdits::Begin() {
  affected_.clear();
  edited_.reset();
}

/// A change of formats keeps the text's length.
void ListEdits::Before(Position from, Position to, const Fragment& fragment) {
  const Selection range = document_.SnapOutward(from, to);
  const LeafList& leaves = document_.Leaves();
  const Position first = leaves.BreaksBefore(range.start);
  const Position last = leaves.BreaksBefore(range.end);
  MergeEdit(edited_, {range.start, range.Length(), fragment.Length()});
  if (first == last && fragment.leaves.Breaks() == 0) return;
  std::vector<ParaId> removed, inserted;
  leaves.ForEachMark(first, last, [&](ParaId mark) { removed.push_back(mark); });
  fragment.leaves.ForEachMark(0, fragment.leaves.Breaks(),
                              [&](ParaId mark) { inserted.push_back(mark); });
  const auto sameLists = [&] {
    const auto key = [&](ParaId id) { return Lists().KeyOf(id); };
    return std::ranges::equal(removed, inserted, {}, key, key);
  };
  if (range.Length() == fragment.Length() && sameLists()) return;
  for (const ParaId paragraph : removed) Affect(paragraph);
  for (const ParaId paragraph : inserted) Affect(paragraph);
  Affect(document_.ParaFormatAt(range.end));
}

void ListEdits::Affect(ParaId paragraph) {
  const ListKey key = Lists().KeyOf(paragraph);
  if (key.kind != ListKey::Kind::None && std::ranges::find(affected_, key) == affected_.end())
    affected_.push_back(key);
}

NoteLists& ListEdits::Lists() {
  const HeadId head = document_.Mark().head;
  if (!lists_ || head_ != head) lists_.emplace(document_.Formats(), head);
  head_ = head;
  return *lists_;
}

std::vector<NumberChange> ListEdits::Finish() {
  if (affected_.empty()) return {};
  return Renumbered(document_, document_.Formats(), Lists(), affected_,
                    {edited_->at, edited_->at + edited_->inserted});
}

}  // namespace lumenote

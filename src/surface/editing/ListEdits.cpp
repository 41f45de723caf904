#include "surface/editing/ListEdits.h"

#include <algorithm>

namespace lumenote {
namespace {

/// The format of a table cell that ends in the run.
std::optional<ParaId> CellEndedBy(TextView run, const Kept& kept) {
  if (kept.kind != Kept::Kind::Cell || run.Find('\t', 0) == run.Size()) return std::nullopt;
  return kept.paragraph;
}

}  // namespace

void ListEdits::Begin() { edited_ = {}; }

/// A change of formats keeps the text's length.
void ListEdits::Before(Position from, Position to, const Fragment& fragment) {
  const Selection range = document_.SnapOutward(from, to);
  Record(range, fragment.Length());
  const std::vector<ParaId> removed = ItemsOf(document_.Leaves(), range);
  const std::vector<ParaId> inserted = ItemsOf(fragment.leaves, {0, fragment.Length()});
  if (removed.empty() && inserted.empty()) return;
  const auto sameLists = [&] {
    const auto key = [&](ParaId id) { return Lists().KeyOf(id); };
    return std::ranges::equal(removed, inserted, {}, key, key);
  };
  if (range.Length() == fragment.Length() && sameLists()) return;
  for (const ParaId item : removed) Affect(item);
  for (const ParaId item : inserted) Affect(item);
  AffectItemAt(range.end);
}

/// The formats of the paragraphs and cells that end in a range: first those, then these.
std::vector<ParaId> ListEdits::ItemsOf(const LeafList& leaves, Selection range) const {
  std::vector<ParaId> items;
  leaves.ForEachMark(leaves.BreaksBefore(range.start), leaves.BreaksBefore(range.end),
                     [&](ParaId mark) { items.push_back(mark); });
  const FormatTables& tables = document_.Formats();
  leaves.ForEachRun(range.start, range.end, [&](Position, TextView text, CharId format) {
    if (const auto cell = CellEndedBy(text, tables.kept[tables.characters[format].kept]))
      items.push_back(*cell);
  });
  return items;
}

void ListEdits::Affect(ParaId item) {
  if (Lists().KeyOf(item).kind != ListKey::Kind::None) edited_.formats.insert(item);
}

/// The item that holds the position ends with a cell or with the paragraph.
void ListEdits::AffectItemAt(Position position) {
  const Position end = document_.ParagraphEnd(document_.ParagraphOf(position));
  const std::vector<ParaId> cells = ItemsOf(document_.Leaves(), {position, end});
  Affect(cells.empty() ? document_.ParaFormatAt(position) : cells.front());
}

/// Notes where the edit will leave its text, and moves what earlier ones left.
void ListEdits::Record(Selection range, Position inserted) {
  const auto moved = [&](Position position) {
    if (position >= range.end) return position + inserted - range.Length();
    return std::min(position, range.start);
  };
  for (Selection& earlier : edited_.ranges) earlier = {moved(earlier.start), moved(earlier.end)};
  edited_.ranges.push_back({range.start, range.start + inserted});
}

NoteLists& ListEdits::Lists() {
  const HeadId head = document_.Mark().head;
  if (!lists_ || head_ != head) lists_.emplace(document_.Formats(), head);
  head_ = head;
  return *lists_;
}

std::vector<NumberChange> ListEdits::Finish() {
  if (edited_.formats.empty()) return {};
  return Renumbered(document_, document_.Formats(), Lists(), edited_);
}

}  // namespace lumenote

#include "document/lists/NumberChanges.h"

#include <algorithm>
#include <utility>

#include "base/Strings.h"

namespace lumenote {
namespace {

/// Copies the text of a range front to back.
class ChangingCopy {
 public:
  ChangingCopy(const Document& document, FormatTables& tables,
               const std::vector<NumberChange>& changes)
      : document_(document),
        tables_(tables),
        change_(changes.begin()),
        end_(changes.end()),
        range_{changes.front().range.start,
               document.SnapForward(std::min(changes.back().range.end + 1, document.Length()))} {
    const LeafList& leaves = document.Leaves();
    leaves.ForEachMark(leaves.BreaksBefore(range_.start), leaves.BreaksBefore(range_.end),
                       [this](ParaId mark) { marks_.push_back(mark); });
    mark_ = marks_.data();
  }

  ChangedText Finish() {
    document_.ForEachRun(range_.start, range_.end,
                         [this](Position at, TextView text, CharId id) { Run(at, text, id); });
    Reach(range_.end);
    Fragment fragment = builder_.Finish();
    if (!items_.empty()) {
      fragment.mark = document_.Mark();
      fragment.mark->character = WithItems(fragment.mark->character);
    }
    return {range_, std::move(fragment)};
  }

 private:
  void Run(Position at, TextView text, CharId format) {
    while (!text.Empty()) {
      const bool changes = Reach(at);
      const Position next = change_ == end_ ? range_.end
                            : changes       ? change_->range.end
                                            : change_->range.start;
      const std::size_t length = std::min(text.Size(), static_cast<std::size_t>(next - at));
      if (changes)
        Leave(format);
      else
        Append(text.Part(0, length), format);
      text.RemovePrefix(length);
      at += static_cast<Position>(length);
    }
  }
  /// Appends the numbers of changes that end up to there. Returns whether the next one begins.
  bool Reach(Position at) {
    for (; change_ != end_ && change_->range.end <= at; ++change_) {
      Append(change_->text, WithoutItems(change_->format));
      left_ = 0;
    }
    return change_ != end_ && change_->range.start <= at;
  }
  /// Leaves characters out, but not the items at the first.
  void Leave(CharId format) {
    const KeptId kept = tables_.characters[format].kept;
    if (std::exchange(left_, kept) == kept) return;
    tables_.items.ForEach(tables_.kept[kept].before,
                          [this](const KeptItem& item) { items_.push_back(item); });
  }
  void Append(TextView text, CharId format) {
    if (text.Empty()) return;
    if (!items_.empty()) {
      const bool pair = text.Size() > 1 && (text.Front() == u'\r' || IsHighSurrogate(text.Front()));
      const std::size_t first = pair ? 2 : 1;
      mark_ = builder_.Append(text.Part(0, first), WithItems(format), mark_);
      text.RemovePrefix(first);
    }
    mark_ = builder_.Append(text, format, mark_);
  }
  /// The format with the items that numbers have left before it.
  CharId WithItems(CharId id) {
    Kept kept = tables_.kept[tables_.characters[id].kept];
    kept.before = tables_.items.Chain(std::exchange(items_, {}), kept.before);
    kept.serial = tables_.NextSerial();
    return WithKept(id, kept);
  }
  CharId WithoutItems(CharId id) {
    Kept kept = tables_.kept[tables_.characters[id].kept];
    kept.before = 0;
    kept.serial = 0;
    return WithKept(id, kept);
  }
  CharId WithKept(CharId id, const Kept& kept) {
    CharFormat format = tables_.characters[id];
    format.kept = tables_.kept.Intern(kept);
    return tables_.characters.Intern(format);
  }

  using Changes = std::vector<NumberChange>::const_iterator;

  const Document& document_;
  FormatTables& tables_;
  Changes change_, end_;
  Selection range_;
  std::vector<ParaId> marks_;
  const ParaId* mark_ = nullptr;
  FragmentBuilder builder_;
  KeptId left_ = 0;  // of the last character left out of the present number
  KeptItems items_;  // of characters left out, for the next one
};

}  // namespace

ChangedText WithChanges(const Document& document, FormatTables& tables,
                        const std::vector<NumberChange>& changes) {
  return ChangingCopy(document, tables, changes).Finish();
}

Position ShiftedBy(const std::vector<NumberChange>& changes, Position position) {
  Position shift = 0;
  for (const auto& [range, text, format] : changes) {
    const auto length = static_cast<Position>(text.size());
    const bool inside = range.start < position && position < range.end;
    if (inside) return range.start + shift + std::min(position - range.start, length);
    if (range.end <= position && (range.start < position || range.Length() == 0))
      shift += length - range.Length();
  }
  return position + shift;
}

}  // namespace lumenote

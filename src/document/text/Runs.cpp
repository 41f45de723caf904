#include "document/text/Runs.h"

#include <algorithm>
#include <cassert>
#include <iterator>

namespace lumenote {
namespace {

Run MakeRun(Position length, CharId format) {
  return {static_cast<std::uint32_t>(length) & 0xFFF, format & 0xFFFFF};
}

}  // namespace

CharId Runs::FormatAt(Position at) const { return items_[Holding(at).index].format; }

void Runs::Append(Position length, CharId format) {
  if (length == 0) return;
  length_ += length;
  if (!items_.empty() && items_.back().format == format) {
    length += static_cast<Position>(items_.back().length);
    items_.pop_back();
  }
  items_.push_back(MakeRun(length, format));
}

void Runs::Replace(Position at, Position removed, const Runs& inserted) {
  if (Resize(at, removed, inserted)) return;
  const Index first = CutAt(at);
  const Index last = CutAt(at + removed);
  const Index count = std::ssize(inserted.items_);
  const Index common = std::min(last - first, count);
  std::copy_n(inserted.begin(), common, items_.begin() + first);
  items_.erase(items_.begin() + first + common, items_.begin() + last);
  items_.insert(items_.begin() + first + common, inserted.begin() + common, inserted.end());
  length_ += inserted.length_ - removed;
  JoinBefore(first + count);
  JoinBefore(first);
  assert(IsSound());
}

Runs Runs::Part(Position from, Position to) const {
  Runs part;
  if (from == to) return part;
  const Location first = Holding(from);
  Position start = first.start;
  for (Index i = first.index; start < to; start += LengthOf(i++)) {
    const Position end = std::min(start + LengthOf(i), to);
    part.Append(end - std::max(start, from), items_[i].format);
  }
  return part;
}

bool Runs::IsSound() const {
  Position length = 0;
  for (const Run run : items_) {
    if (run.length == 0) return false;
    length += static_cast<Position>(run.length);
  }
  const auto alike = [](Run one, Run other) { return one.format == other.format; };
  return length == length_ && std::ranges::adjacent_find(items_, alike) == items_.end();
}

void Runs::Clear() {
  items_.clear();
  length_ = 0;
}

Runs::Location Runs::Holding(Position at) const {
  Location location;
  if (at < length_ / 2) {
    while (location.start + LengthOf(location.index) <= at)
      location.start += LengthOf(location.index++);
    return location;
  }
  location = {std::ssize(items_), length_};
  while (location.start > at) location.start -= LengthOf(--location.index);
  return location;
}

Runs::Index Runs::CutAt(Position at) {
  if (at == length_) return std::ssize(items_);
  const Location location = Holding(at);
  if (location.start == at) return location.index;
  const CharId format = items_[location.index].format;
  const Run rest = MakeRun(location.start + LengthOf(location.index) - at, format);
  items_[location.index] = MakeRun(at - location.start, format);
  items_.insert(items_.begin() + location.index + 1, rest);
  return location.index + 1;
}

void Runs::JoinBefore(Index index) {
  if (index == 0 || index >= std::ssize(items_)) return;
  const CharId format = items_[index].format;
  if (items_[index - 1].format != format) return;
  items_[index - 1] = MakeRun(LengthOf(index - 1) + LengthOf(index), format);
  items_.erase(items_.begin() + index);
}

bool Runs::Resize(Position at, Position removed, const Runs& inserted) {
  if (inserted.items_.size() > 1 || items_.empty()) return false;
  // Text inserted between two runs may extend the first.
  const Location location = Holding(removed == 0 && at > 0 ? at - 1 : at);
  const CharId format = items_[location.index].format;
  const Position change = inserted.length_ - removed;
  const Position resized = LengthOf(location.index) + change;
  if (at + removed > location.start + LengthOf(location.index) || resized == 0) return false;
  if (!inserted.items_.empty() && inserted.items_.front().format != format) return false;
  items_[location.index] = MakeRun(resized, format);
  length_ += change;
  return true;
}

}  // namespace lumenote

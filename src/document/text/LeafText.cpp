#include "document/text/LeafText.h"

#include <algorithm>
#include <bit>

namespace lumenote {
namespace {

/// Small texts get a power of two, to grow in few steps; from half a leaf on, the capacity of a
/// whole one.
Position RoomFor(Position size) {
  constexpr unsigned kLeast = 8;
  const unsigned room = std::bit_ceil(std::max(static_cast<unsigned>(size), kLeast));
  return std::min(static_cast<Position>(room), LeafText::kCapacity);
}

/// Storage for `room` bytes or units.
template <class Unit>
std::shared_ptr<char16_t[]> Storage(Position room) {
  const std::size_t bytes = static_cast<std::size_t>(room) * sizeof(Unit);
  return std::make_shared_for_overwrite<char16_t[]>(bytes / sizeof(char16_t));
}

}  // namespace

LeafText::LeafText(TextView text) { Replace(0, 0, text); }

void LeafText::Replace(Position at, Position removed, TextView inserted) {
  if (!wide_) {
    char bytes[kCapacity];
    if (inserted.CopyTo(bytes)) return Splice<char>(at, removed, {bytes, inserted.Size()});
    Widen();
  }
  char16_t units[kCapacity];
  inserted.CopyTo(units);
  Splice<char16_t>(at, removed, {units, inserted.Size()});
}

template <class Unit>
void LeafText::Splice(Position at, Position removed, std::basic_string_view<Unit> inserted) {
  const auto added = static_cast<Position>(inserted.size());
  const Position size = size_ - removed + added;
  if (size > capacity_ || storage_.use_count() > 1) {
    Reallocate<Unit>(at, removed, added);
  } else {
    Unit* const hole = Data<Unit>() + at;
    std::char_traits<Unit>::move(hole + added, hole + removed, size_ - at - removed);
  }
  std::copy(inserted.begin(), inserted.end(), Data<Unit>() + at);
  size_ = static_cast<std::int16_t>(size);
}

template <class Unit>
void LeafText::Reallocate(Position at, Position removed, Position inserted) {
  const Unit* const old = Data<Unit>();
  const Position room = RoomFor(size_ - removed + inserted);
  auto storage = Storage<Unit>(room);
  auto* const units = reinterpret_cast<Unit*>(storage.get());
  std::copy_n(old, at, units);
  std::copy_n(old + at + removed, size_ - at - removed, units + at + inserted);
  storage_ = std::move(storage);
  capacity_ = static_cast<std::int16_t>(room);
}

void LeafText::Widen() {
  const TextView bytes = View();
  auto storage = size_ == 0 ? nullptr : Storage<char16_t>(size_);
  bytes.CopyTo(storage.get());
  storage_ = std::move(storage);
  capacity_ = size_;
  wide_ = true;
}

}  // namespace lumenote

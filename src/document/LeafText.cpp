#include "document/LeafText.h"

#include <algorithm>
#include <bit>

namespace lumenote {
namespace {

using Units = std::char_traits<char16_t>;

/// Small texts take a power of two, so that they grow in few steps; from half a leaf on a text has
/// the room of a whole one.
Position RoomFor(Position size) {
  constexpr unsigned kLeast = 8;
  const unsigned room = std::bit_ceil(std::max(static_cast<unsigned>(size), kLeast));
  return std::min(static_cast<Position>(room), LeafText::kCapacity);
}

}  // namespace

LeafText::LeafText(std::u16string_view text) { Replace(0, 0, text); }

void LeafText::Replace(Position at, Position removed, std::u16string_view inserted) {
  const auto added = static_cast<Position>(inserted.size());
  const Position size = size_ - removed + added;
  if (size > capacity_ || units_.use_count() > 1) {
    Reopen(at, removed, added);
  } else {
    Units::move(units_.get() + at + added, units_.get() + at + removed, size_ - at - removed);
  }
  Units::copy(units_.get() + at, inserted.data(), inserted.size());
  size_ = size;
}

void LeafText::Reopen(Position at, Position removed, Position inserted) {
  const Position room = RoomFor(size_ - removed + inserted);
  auto units = std::make_shared_for_overwrite<char16_t[]>(static_cast<std::size_t>(room));
  Units::copy(units.get(), units_.get(), at);
  Units::copy(units.get() + at + inserted, units_.get() + at + removed, size_ - at - removed);
  units_ = std::move(units);
  capacity_ = room;
}

}  // namespace lumenote

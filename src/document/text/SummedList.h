// A list of items whose sizes are summed.
#pragma once
#include <cstddef>
#include <iterator>
#include <utility>
#include <vector>

#include "base/Position.h"
#include "document/text/MakeRoom.h"

namespace lumenote {

/// The size of some text: its UTF-16 units, and the paragraph breaks among them.
struct TextSize {
  Position length = 0;
  Position breaks = 0;
  TextSize& operator+=(TextSize other) {
    length += other.length;
    breaks += other.breaks;
    return *this;
  }
  TextSize operator+(TextSize other) const {
    return {length + other.length, breaks + other.breaks};
  }
  TextSize& operator-=(TextSize other) {
    length -= other.length;
    breaks -= other.breaks;
    return *this;
  }
};

/// One level of a tree of sums. Sizes, which searches scan, are stored apart from the items.
/// `Change` modifies an item and updates its size and the total; `SizeOf(item)` gives an item's
/// size.
template <class Item>
class SummedList {
 public:
  /// An item's index, and the size of all items before it.
  struct Location {
    std::size_t index = 0;
    TextSize before;
  };

  bool Empty() const { return items_.empty(); }
  std::size_t Size() const { return items_.size(); }
  const Item& operator[](std::size_t index) const { return items_[index]; }
  TextSize Total() const { return total_; }

  /// The item that holds unit number `unit`, which must exist.
  Location HoldingUnit(Position unit) const { return Holding<&TextSize::length>(unit); }
  /// The item that holds break number `index`, which must exist.
  Location HoldingBreak(Position index) const { return Holding<&TextSize::breaks>(index); }

  void Insert(std::size_t index, Item item) {
    MakeRoom(items_, 1);
    MakeRoom(sizes_, 1);
    sizes_.insert(At(sizes_, index), SizeOf(item));
    total_ += sizes_[index];
    items_.insert(At(items_, index), std::move(item));
  }
  void Push(Item item) { Insert(Size(), std::move(item)); }
  Item Take(std::size_t index) {
    Item item = std::move(items_[index]);
    total_ -= sizes_[index];
    items_.erase(At(items_, index));
    sizes_.erase(At(sizes_, index));
    return item;
  }
  template <class Action>
  void Change(std::size_t index, Action action) {
    action(items_[index]);
    total_ -= sizes_[index];
    sizes_[index] = SizeOf(items_[index]);
    total_ += sizes_[index];
  }
  /// Cuts off and returns the items from `index` on.
  SummedList Cut(std::size_t index) {
    SummedList tail;
    if (index == 0) std::swap(tail, *this);
    if (index == 0 || index == Size()) return tail;
    tail.items_.assign(std::make_move_iterator(At(items_, index)),
                       std::make_move_iterator(items_.end()));
    tail.sizes_.assign(At(sizes_, index), sizes_.end());
    for (TextSize size : tail.sizes_) tail.total_ += size;
    total_ -= tail.total_;
    items_.erase(At(items_, index), items_.end());
    sizes_.erase(At(sizes_, index), sizes_.end());
    return tail;
  }
  void Append(SummedList tail) {
    MakeRoom(items_, tail.Size());
    MakeRoom(sizes_, tail.Size());
    items_.insert(items_.end(), std::make_move_iterator(tail.items_.begin()),
                  std::make_move_iterator(tail.items_.end()));
    sizes_.insert(sizes_.end(), tail.sizes_.begin(), tail.sizes_.end());
    total_ += tail.total_;
  }

 private:
  template <class Element>
  static auto At(std::vector<Element>& elements, std::size_t index) {
    return elements.begin() + static_cast<std::ptrdiff_t>(index);
  }
  template <Position TextSize::*kMeasure>
  Location Holding(Position number) const {
    Location location;
    while (number >= location.before.*kMeasure + sizes_[location.index].*kMeasure) {
      location.before += sizes_[location.index++];
    }
    return location;
  }

  std::vector<Item> items_;
  std::vector<TextSize> sizes_;
  TextSize total_;
};

template <class Item>
TextSize SizeOf(const SummedList<Item>& list) {
  return list.Total();
}

}  // namespace lumenote

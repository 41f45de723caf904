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
struct Extent {
  Position length = 0;
  Position breaks = 0;
  Extent& operator+=(Extent other) {
    length += other.length;
    breaks += other.breaks;
    return *this;
  }
  Extent operator+(Extent other) const { return {length + other.length, breaks + other.breaks}; }
  Extent& operator-=(Extent other) {
    length -= other.length;
    breaks -= other.breaks;
    return *this;
  }
};

/// One level of a tree of sums. Sizes, which searches scan, are stored apart from the items.
/// `Change` modifies an item and updates its size and the total; `ExtentOf(item)` gives an item's
/// size.
template <class Item>
class Row {
 public:
  /// An item's index, and the size of all items before it.
  struct Spot {
    std::size_t index = 0;
    Extent before;
  };

  bool Empty() const { return items_.empty(); }
  std::size_t Size() const { return items_.size(); }
  const Item& operator[](std::size_t index) const { return items_[index]; }
  Extent Total() const { return total_; }

  /// The item that holds unit number `unit`, which must exist.
  Spot HoldingUnit(Position unit) const { return Holding<&Extent::length>(unit); }
  /// The item that holds break number `index`, which must exist.
  Spot HoldingBreak(Position index) const { return Holding<&Extent::breaks>(index); }

  void Insert(std::size_t index, Item item) {
    MakeRoom(items_, 1);
    MakeRoom(extents_, 1);
    extents_.insert(At(extents_, index), ExtentOf(item));
    total_ += extents_[index];
    items_.insert(At(items_, index), std::move(item));
  }
  void Push(Item item) { Insert(Size(), std::move(item)); }
  Item Take(std::size_t index) {
    Item item = std::move(items_[index]);
    total_ -= extents_[index];
    items_.erase(At(items_, index));
    extents_.erase(At(extents_, index));
    return item;
  }
  template <class Action>
  void Change(std::size_t index, Action action) {
    action(items_[index]);
    total_ -= extents_[index];
    extents_[index] = ExtentOf(items_[index]);
    total_ += extents_[index];
  }
  /// Cuts off and returns the items from `index` on.
  Row Cut(std::size_t index) {
    Row tail;
    if (index == 0) std::swap(tail, *this);
    if (index == 0 || index == Size()) return tail;
    tail.items_.assign(std::make_move_iterator(At(items_, index)),
                       std::make_move_iterator(items_.end()));
    tail.extents_.assign(At(extents_, index), extents_.end());
    for (Extent extent : tail.extents_) tail.total_ += extent;
    total_ -= tail.total_;
    items_.erase(At(items_, index), items_.end());
    extents_.erase(At(extents_, index), extents_.end());
    return tail;
  }
  void Append(Row tail) {
    MakeRoom(items_, tail.Size());
    MakeRoom(extents_, tail.Size());
    items_.insert(items_.end(), std::make_move_iterator(tail.items_.begin()),
                  std::make_move_iterator(tail.items_.end()));
    extents_.insert(extents_.end(), tail.extents_.begin(), tail.extents_.end());
    total_ += tail.total_;
  }

 private:
  template <class Element>
  static auto At(std::vector<Element>& elements, std::size_t index) {
    return elements.begin() + static_cast<std::ptrdiff_t>(index);
  }
  template <Position Extent::*kMeasure>
  Spot Holding(Position number) const {
    Spot spot;
    while (number >= spot.before.*kMeasure + extents_[spot.index].*kMeasure) {
      spot.before += extents_[spot.index++];
    }
    return spot;
  }

  std::vector<Item> items_;
  std::vector<Extent> extents_;
  Extent total_;
};

template <class Item>
Extent ExtentOf(const Row<Item>& row) {
  return row.Total();
}

}  // namespace lumenote

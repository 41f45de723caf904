// The text of a leaf: a small buffer of UTF-16 units, copied on write.
#pragma once
#include <memory>
#include <string_view>

#include "base/Position.h"

namespace lumenote {

/// At most `kCapacity` units. Copies share the buffer until one of them writes, so that leaves
/// which differ in their formats alone hold one text.
class LeafText {
 public:
  static constexpr Position kCapacity = 2048;

  LeafText() = default;
  explicit LeafText(std::u16string_view text);

  Position Size() const { return size_; }
  std::u16string_view View() const {
    return {units_.get(), static_cast<std::u16string_view::size_type>(size_)};
  }
  /// Puts `inserted` in the place of `removed` units at `at`; the result must fit.
  void Replace(Position at, Position removed, std::u16string_view inserted);

 private:
  /// Moves the text into a buffer of its own, leaving out `removed` units at `at` and leaving room
  /// for `inserted` ones there.
  void Reopen(Position at, Position removed, Position inserted);

  std::shared_ptr<char16_t[]> units_;
  Position size_ = 0;
  Position capacity_ = 0;
};

}  // namespace lumenote

// The text of a leaf: a small buffer, copied on write.
#pragma once
#include <memory>
#include <string_view>

#include "base/Position.h"
#include "document/text/TextView.h"

namespace lumenote {

/// At most `kCapacity` units, as bytes of code page 1252 until one comes in that has no byte.
/// Copies share the buffer until one of them writes, so that leaves which differ in their formats
/// alone hold one text.
class LeafText {
 public:
  static constexpr Position kCapacity = 2048;

  LeafText() = default;
  explicit LeafText(TextView text);

  Position Size() const { return size_; }
  TextView View() const {
    const auto size = static_cast<std::size_t>(size_);
    if (wide_) return std::u16string_view(Data<char16_t>(), size);
    return TextView(std::string_view(Data<char>(), size));
  }
  /// Puts `inserted` in the place of `removed` units at `at`; the result must fit.
  void Replace(Position at, Position removed, TextView inserted);

 private:
  template <class Unit>
  Unit* Data() const {
    return reinterpret_cast<Unit*>(storage_.get());
  }
  template <class Unit>
  void Splice(Position at, Position removed, std::basic_string_view<Unit> inserted);
  /// Moves the text into a buffer of its own, leaving out `removed` units at `at` and leaving room
  /// for `inserted` ones there.
  template <class Unit>
  void Reopen(Position at, Position removed, Position inserted);
  /// Turns the bytes into units.
  void Widen();

  std::shared_ptr<char16_t[]> storage_;  // of units, or of bytes two by two
  std::int16_t size_ = 0;                // both in units of text
  std::int16_t capacity_ = 0;
  bool wide_ = false;
};

}  // namespace lumenote

// The text of a leaf: a small copy-on-write buffer.
#pragma once
#include <memory>
#include <string_view>

#include "base/Position.h"
#include "document/text/TextView.h"

namespace lumenote {

/// At most `kCapacity` units, stored as bytes of code page 1252 until a unit has none. Copies share
/// the buffer until one writes, so leaves that differ only in formats share their text.
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
  /// Replaces `removed` units at `at` by `inserted`; the result must fit.
  void Replace(Position at, Position removed, TextView inserted);

 private:
  template <class Unit>
  Unit* Data() const {
    return reinterpret_cast<Unit*>(storage_.get());
  }
  template <class Unit>
  void Splice(Position at, Position removed, std::basic_string_view<Unit> inserted);
  /// Moves the text to a buffer of its own, without `removed` units at `at` and with a gap of
  /// `inserted` units there.
  template <class Unit>
  void Reallocate(Position at, Position removed, Position inserted);
  /// Converts the bytes to units.
  void Widen();

  std::shared_ptr<char16_t[]> storage_;  // of units, or of bytes in pairs
  std::int16_t size_ = 0;                // like the capacity, in units of text
  std::int16_t capacity_ = 0;
  bool wide_ = false;
};

}  // namespace lumenote

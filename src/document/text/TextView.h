// A view of text in either of its encodings.
#pragma once
#include <algorithm>
#include <concepts>
#include <cstddef>
#include <limits>
#include <string>
#include <string_view>

#include "base/Windows1252.h"

namespace lumenote {

/// Text stored as bytes of code page 1252 or as UTF-16 units. Lengths and positions are the same in
/// both, since each byte is one unit. NUL is never stored as a byte.
class TextView {
 public:
  TextView() = default;
  explicit TextView(std::string_view bytes) : text_(bytes.data()), size_(bytes.size()) {}
  template <std::convertible_to<std::u16string_view> Text>
  TextView(const Text& text) : wide_(1) {
    const std::u16string_view units = text;
    text_ = units.data();
    size_ = units.size();
  }

  bool Empty() const { return size_ == 0; }
  std::size_t Size() const { return size_; }
  char16_t operator[](std::size_t at) const {
    return wide_ ? Units()[at] : UnitOf1252(Bytes()[at]);
  }
  char16_t Front() const { return (*this)[0]; }
  char16_t Back() const { return (*this)[size_ - 1]; }

  /// Calls `visit` with a `std::string_view` of bytes or a `std::u16string_view`.
  template <class Visitor>
  auto Visit(Visitor visit) const {
    return wide_ ? visit(Units()) : visit(Bytes());
  }

  /// At most `count` units from `from` on, which must not be beyond the end.
  TextView Part(std::size_t from, std::size_t count) const {
    return Visit([=](auto text) { return TextView(text.substr(from, count)); });
  }
  void RemovePrefix(std::size_t count) { *this = Part(count, size_); }

  /// The next ASCII character `c` at or after `from`; the text's end if there is none.
  std::size_t Find(char c, std::size_t from) const {
    return std::min(Size(), Visit([=](auto text) { return text.find(c, from); }));
  }

  /// Copies the text to `to` as bytes. Returns false if some unit has none; the content of `to` is
  /// then unspecified.
  [[nodiscard]] bool CopyTo(char* to) const;
  /// Copies the text to `to` as units.
  void CopyTo(char16_t* to) const;
  void AppendTo(std::u16string& text) const;
  std::u16string String() const;

 private:
  std::string_view Bytes() const { return {static_cast<const char*>(text_), Size()}; }
  std::u16string_view Units() const { return {static_cast<const char16_t*>(text_), Size()}; }

  // Two words, so that views are passed in registers.
  const void* text_ = nullptr;
  std::size_t size_ : std::numeric_limits<std::size_t>::digits - 1 = 0;
  std::size_t wide_ : 1 = 0;
};

}  // namespace lumenote

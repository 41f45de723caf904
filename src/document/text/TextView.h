// A view of text, whichever way it lies in memory.
#pragma once
#include <algorithm>
#include <concepts>
#include <cstddef>
#include <limits>
#include <string>
#include <string_view>

#include "base/Windows1252.h"

namespace lumenote {

/// Text that lies as bytes of code page 1252 or as UTF-16 units; lengths and places are the same in
/// both, since each byte is one unit. NUL has no byte here.
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

  /// Calls `visit` with the text as it lies, a `std::string_view` of bytes or a
  /// `std::u16string_view`.
  template <class Visitor>
  auto Visit(Visitor visit) const {
    return wide_ ? visit(Units()) : visit(Bytes());
  }

  /// At most `count` units from `from` on, which is not beyond the end.
  TextView Part(std::size_t from, std::size_t count) const {
    return Visit([=](auto text) { return TextView(text.substr(from, count)); });
  }
  void RemovePrefix(std::size_t count) { *this = Part(count, size_); }

  /// Where the ASCII character `c` next stands from `from` on; the text's end when nowhere.
  std::size_t Find(char c, std::size_t from) const {
    return std::min(Size(), Visit([=](auto text) { return text.find(c, from); }));
  }

  /// Copies the text, which `to` has room for, as bytes; false when some unit has none, and then
  /// what `to` holds does not matter.
  [[nodiscard]] bool CopyTo(char* to) const;
  /// The same as units, which always goes.
  void CopyTo(char16_t* to) const;
  void AppendTo(std::u16string& text) const;
  std::u16string String() const;

 private:
  std::string_view Bytes() const { return {static_cast<const char*>(text_), Size()}; }
  std::u16string_view Units() const { return {static_cast<const char16_t*>(text_), Size()}; }

  // Two words in all, so that a view goes in registers.
  const void* text_ = nullptr;
  std::size_t size_ : std::numeric_limits<std::size_t>::digits - 1 = 0;
  std::size_t wide_ : 1 = 0;
};

}  // namespace lumenote

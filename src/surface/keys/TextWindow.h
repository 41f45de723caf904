// Characters of a document one at a time, in either direction, without a look-up for each.
#pragma once
#include <string>

#include "document/Document.h"

namespace lumenote {

/// The character that a surrogate pair stands for.
constexpr char32_t PairCode(char16_t high, char16_t low) {
  return static_cast<char32_t>(0x10000 + ((high & 0x3FF) << 10) + (low & 0x3FF));
}

/// A piece of the document's text that follows the positions asked for. Valid until the document
/// changes.
class TextWindow {
 public:
  explicit TextWindow(const Document& document);

  Position Length() const { return length_; }
  /// The unit at `position`, which lies in the document.
  char16_t operator[](Position position);
  /// The character at `position`, a surrogate pair as its code point.
  char32_t Character(Position position);
  /// The positions behind and before a character, CR LF and a surrogate pair counting as one; the
  /// document's ends stay where they are.
  Position Next(Position position);
  Position Previous(Position position);

 private:
  bool IsPair(Position position);

  const Document& document_;
  Position length_;
  Position from_ = 0;
  std::u16string text_;
};

}  // namespace lumenote

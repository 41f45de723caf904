// Reads a document character by character, in either direction, without a look-up for each.
#pragma once
#include <string>

#include "document/Document.h"

namespace lumenote {

/// The code point of a surrogate pair.
constexpr char32_t PairCode(char16_t high, char16_t low) {
  return static_cast<char32_t>(0x10000 + ((high & 0x3FF) << 10) + (low & 0x3FF));
}

/// Keeps a copy of the text around the last position read. Valid until the document changes.
class CharacterReader {
 public:
  explicit CharacterReader(const Document& document);

  Position Length() const { return length_; }
  /// The unit at `position`, which must lie in the document.
  char16_t operator[](Position position);
  /// The character at `position`, a surrogate pair as its code point.
  char32_t Character(Position position);
  /// The positions after and before a character; CR LF and a surrogate pair each count as one
  /// character. Stops at the document's ends.
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

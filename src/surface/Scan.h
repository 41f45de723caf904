// Passing over the characters of a set.
#pragma once
#include <string>
#include <string_view>

#include "document/Document.h"

namespace lumenote {

/// A set of characters; one that holds CR or LF holds the paragraph break, which is one character.
class CharacterSet {
 public:
  explicit CharacterSet(std::u16string_view members);
  bool Has(char32_t character) const;

 private:
  std::u32string members_;
};

/// Behind the characters from `from` on that are in the set, or with `negate` outside it.
Position ScanForward(const Document& document, Position from, const CharacterSet& set, bool negate);
/// The same before `from`, backwards.
Position ScanBackward(const Document& document, Position from, const CharacterSet& set,
                      bool negate);

}  // namespace lumenote

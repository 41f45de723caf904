// Scanning over characters of a set.
#pragma once
#include <string>
#include <string_view>

#include "document/Document.h"

namespace lumenote {

/// A set of characters. A set with CR or LF contains the paragraph break, which counts as one
/// character.
class CharacterSet {
 public:
  explicit CharacterSet(std::u16string_view members);
  bool Has(char32_t character) const;

 private:
  std::u32string members_;
};

/// The position after the run of characters from `from` on that are in the set, or with `negate`
/// not in it.
Position ScanForward(const Document& document, Position from, const CharacterSet& set, bool negate);
/// The same, backwards: the start of the run that ends at `from`.
Position ScanBackward(const Document& document, Position from, const CharacterSet& set,
                      bool negate);

}  // namespace lumenote

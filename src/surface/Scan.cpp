#include "surface/Scan.h"

#include "base/Strings.h"
#include "surface/keys/CharacterReader.h"

namespace lumenote {

CharacterSet::CharacterSet(std::u16string_view members) {
  for (std::size_t i = 0; i < members.size(); ++i) {
    const char16_t unit = members[i];
    if (IsHighSurrogate(unit) && i + 1 < members.size() && IsLowSurrogate(members[i + 1]))
      members_ += PairCode(unit, members[++i]);
    else
      members_ += unit == u'\n' ? U'\r' : char32_t{unit};
  }
}

bool CharacterSet::Has(char32_t character) const {
  return members_.find(character) != std::u32string::npos;
}

Position ScanForward(const Document& document, Position from, const CharacterSet& set,
                     bool negate) {
  CharacterReader text(document);
  while (from < text.Length() && set.Has(text.Character(from)) != negate) from = text.Next(from);
  return from;
}

Position ScanBackward(const Document& document, Position from, const CharacterSet& set,
                      bool negate) {
  CharacterReader text(document);
  while (from > 0) {
    const Position before = text.Previous(from);
    if (set.Has(text.Character(before)) == negate) break;
    from = before;
  }
  return from;
}

}  // namespace lumenote

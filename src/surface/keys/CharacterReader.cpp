#include "surface/keys/CharacterReader.h"

#include <algorithm>

#include "base/Strings.h"

namespace lumenote {

namespace {

constexpr Position kReach = 256;

}  // namespace

CharacterReader::CharacterReader(const Document& document)
    : document_(document), length_(document.Length()) {}

char16_t CharacterReader::operator[](Position position) {
  if (position < from_ || position - from_ >= static_cast<Position>(text_.size())) {
    from_ = std::max(0, position - kReach);
    text_ = document_.Text(from_, from_ + std::min(2 * kReach, length_ - from_));
  }
  return text_[static_cast<std::size_t>(position - from_)];
}

bool CharacterReader::IsPair(Position position) {
  if (position < 0 || position + 1 >= length_) return false;
  const char16_t first = (*this)[position];
  const char16_t second = (*this)[position + 1];
  return (first == u'\r' && second == u'\n') || (IsHighSurrogate(first) && IsLowSurrogate(second));
}

char32_t CharacterReader::Character(Position position) {
  const char16_t unit = (*this)[position];
  if (!IsHighSurrogate(unit) || !IsPair(position)) return unit;
  return PairCode(unit, (*this)[position + 1]);
}

Position CharacterReader::Next(Position position) {
  if (position >= length_) return length_;
  return position + (IsPair(position) ? 2 : 1);
}

Position CharacterReader::Previous(Position position) {
  if (position <= 0) return 0;
  return position - (IsPair(position - 2) ? 2 : 1);
}

}  // namespace lumenote

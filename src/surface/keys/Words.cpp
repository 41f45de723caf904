#include "surface/keys/Words.h"

#include "base/Characters.h"
#include "surface/keys/CharacterReader.h"

namespace lumenote {

namespace {

enum class Class { Word, Blank, Sign, Break };

Class ClassOf(char16_t c) {
  constexpr char16_t kNoBreakSpace = 0xA0, kNarrowNoBreakSpace = 0x202F;
  if (IsWordCharacter(c)) return Class::Word;
  if (c == u' ' || c == u'\t' || c == kNoBreakSpace || c == kNarrowNoBreakSpace)
    return Class::Blank;
  return c == u'\r' || c == u'\n' || c == u'\v' ? Class::Break : Class::Sign;
}

bool IsApostrophe(char16_t c) { return c == u'\'' || c == u'\u2019'; }

/// Moves through a document by runs of one character class.
class Walk {
 public:
  Walk(const Document& document, Position position) : text_(document), position_(position) {}

  Position Here() const { return position_; }
  bool AtEnd() const { return position_ >= text_.Length(); }
  bool AtStart() const { return position_ <= 0; }
  Class Next() { return ClassOf(text_[position_]); }
  Class Behind() { return ClassOf(text_[position_ - 1]); }
  void Step() { position_ = text_.Next(position_); }
  void StepBack() { position_ = text_.Previous(position_); }
  void Pass(Class c) {
    while (!AtEnd() && Next() == c) Step();
  }
  void PassBack(Class c) {
    while (!AtStart() && Behind() == c) StepBack();
  }
  /// Whether an apostrophe between two letters begins (ends) at this position.
  bool ElisionNext() { return ElisionAt(position_); }
  bool ElisionBehind() { return ElisionAt(position_ - 1); }

 private:
  bool ElisionAt(Position at) {
    return at > 0 && at + 1 < text_.Length() && IsApostrophe(text_[at]) &&
           ClassOf(text_[at - 1]) == Class::Word && ClassOf(text_[at + 1]) == Class::Word;
  }

  CharacterReader text_;
  Position position_;
};

}  // namespace

Position NextWord(const Document& document, Position position) {
  Walk walk(document, position);
  if (walk.AtEnd()) return position;
  const Class first = walk.Next();
  if (first == Class::Break) {
    walk.Step();
    return walk.Here();
  }
  walk.Pass(first);
  if (first == Class::Word && walk.ElisionNext()) walk.Step();
  walk.Pass(Class::Blank);
  return walk.Here();
}

Position PreviousWord(const Document& document, Position position) {
  Walk walk(document, position);
  walk.PassBack(Class::Blank);
  if (walk.AtStart()) return 0;
  const Class last = walk.Behind();
  if (last == Class::Break) {
    if (walk.Here() == position) walk.StepBack();
    return walk.Here();
  }
  if (walk.ElisionBehind()) {
    walk.StepBack();
    walk.PassBack(Class::Word);
  } else {
    walk.PassBack(last);
  }
  return walk.Here();
}

Selection WordAt(const Document& document, Position position) {
  Walk forward(document, position);
  if (forward.AtEnd() || forward.Next() == Class::Break) {
    if (forward.AtStart() || forward.Behind() == Class::Break) return {position, position};
    forward.StepBack();
  }
  const Class kind = forward.Next();
  Walk backward(document, forward.Here());
  forward.Pass(kind);
  backward.PassBack(kind);
  return {backward.Here(), forward.Here()};
}

Position NextParagraph(const Document& document, Position position) {
  const Position next = document.ParagraphOf(position) + 1;
  return next < document.ParagraphCount() ? document.ParagraphStart(next) : document.Length();
}

Position PreviousParagraph(const Document& document, Position position) {
  if (position == 0) return 0;
  return document.ParagraphStart(document.ParagraphOf(document.SnapBackward(position - 1)));
}

}  // namespace lumenote

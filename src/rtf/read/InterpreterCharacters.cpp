// Control words for character formats, and the document's defaults.
#include <algorithm>
#include <utility>

#include "base/Numbers.h"
#include "document/kept/EntryWords.h"
#include "rtf/read/Interpreter.h"
#include "rtf/words/CharacterWords.h"

namespace lumenote {
namespace {

constexpr int kStandardSize = 24;  // half-points: \fs without a number
constexpr int kStandardRaise = 6;  // half-points: \up and \dn without a number

bool On(const Token& word) { return !word.hasNumber || word.number != 0; }

}  // namespace

void Interpreter::DocumentPage(int value, const Token& word) {
  documentPage_ = value != 0 ? value : word.number;
  State().page = CodePage(documentPage_);
}

void Interpreter::DefaultFont(int, const Token& word) {
  defaultFont_ = word.number;
  UseDefaultFont(State());
}

/// A selection goes to a note with another default font, so all its text states its own.
void Interpreter::UseDefaultFont(GroupState& state) {
  const SourceFont* font = fonts_.Find(defaultFont_);
  if (!font) return;
  default_.font = font->font;
  if (target_ == RtfTarget::Selection) default_.stated |= kStatesFont;
  state.character.font = default_.font;
  state.character.stated |= default_.stated;
  state.characterKnown = false;
  state.page = CodePage(font->page ? font->page : documentPage_);
}

void Interpreter::Fallback(int, const Token& word) {
  State().fallback = word.hasNumber ? std::max(word.number, 0) : 1;
}

void Interpreter::Plain(int, const Token&) {
  BeginBody();
  CharFormat& format = EditCharacter();
  format = default_;
  format.reset = ResetHere();
  const SourceFont* font = fonts_.Find(defaultFont_);
  State().page = CodePage(font && font->page ? font->page : documentPage_);
}

/// How readers may misunderstand the \plain here. They give text font 0 from the first one on, but
/// the default one before.
Reset Interpreter::ResetHere() {
  if (target_ != RtfTarget::Document) return Reset::None;
  const bool first = !std::exchange(wasReset_, true) && defaultFont_ > 0;
  if (!behindText_) return first ? Reset::First : Reset::None;
  resetAt_ = contentCount_;
  const bool again = lastReset_ == Reset::BehindText;
  return lastReset_ = again ? Reset::AgainBehindText : Reset::BehindText;
}

/// The character format, to change an attribute that the source states.
CharFormat& Interpreter::StatedCharacter(CharStated attribute) {
  CharFormat& format = EditCharacter();
  format.stated |= attribute;
  return format;
}

void Interpreter::Font(int, const Token& word) {
  const SourceFont* font = fonts_.Find(word.number);
  if (!font) return;
  CharFormat& format = StatedCharacter(kStatesFont);
  format.font = font->font;
  const WordsId words = words_.WithFont(State().fontNumber, format.words);
  const auto namesFont = [this](KeptWord kept) {
    return TableNamedBy(formats_.names[kept.name]).has_value();
  };
  needsTables_ |= words != format.words && formats_.words.Any(words, namesFont);
  format.words = words;
  State().fontNumber = word.number;
  State().page = CodePage(font->page ? font->page : documentPage_);
}

void Interpreter::Size(int, const Token& word) {
  const int size = word.hasNumber ? word.number : kStandardSize;
  if (size <= 0) return;
  CharFormat& format = StatedCharacter(kStatesSize);
  format.words = words_.WithSize(format.size, format.words);
  format.size = Clipped<std::uint16_t>(size);
}

void Interpreter::Effect(int value, const Token& word) {
  std::uint16_t& effects = EditCharacter().effects;
  effects = static_cast<std::uint16_t>(On(word) ? effects | value : effects & ~value);
}

void Interpreter::Script(int value, const Token& word) {
  std::uint16_t& effects = EditCharacter().effects;
  effects = static_cast<std::uint16_t>(effects & ~(kSuperscript | kSubscript));
  if (On(word)) effects = static_cast<std::uint16_t>(effects | value);
}

void Interpreter::UnderlineAs(int value, const Token& word) {
  EditCharacter().underline = On(word) ? static_cast<Underline>(value) : Underline::None;
}

void Interpreter::Number(int row, const Token& word) {
  using Kind = NumberWord::Kind;
  const NumberWord& attribute = kNumberWords[row];
  std::int64_t number = word.hasNumber ? word.number : attribute.get(CharFormat());
  if (attribute.kind != Kind::Number) number = colours_[word.number];
  if (attribute.kind == Kind::Background && word.number == 0) number = kAutoColour;
  const bool colour = attribute.kind == Kind::Colour;
  if (colour) KeepTint(word);
  attribute.set(colour ? StatedCharacter(kStatesColour) : EditCharacter(), number);
}

/// The number of a colour that is said with its place in a theme tells it from others of that look.
void Interpreter::KeepTint(const Token& word) {
  WordsId& words = EditCharacter().words;
  const bool tinted = target_ == RtfTarget::Document && !colours_.Tint(word.number).empty();
  words = tinted ? words_.WithFirst(word, words) : words_.Without(word, words);
}

void Interpreter::Raise(int value, const Token& word) {
  const std::int64_t halfPoints = word.hasNumber ? word.number : kStandardRaise;
  EditCharacter().offset = Clipped<std::int16_t>(halfPoints * value * 10);
}

void Interpreter::SpacingInQuarterPoints(int, const Token& word) {
  EditCharacter().spacing = Clipped<std::int16_t>(std::int64_t{word.number} * 5);
}

}  // namespace lumenote

// Reads \colortbl.
#include "rtf/read/tables/ColourTable.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace lumenote {
namespace {

/// The bit position of a component in a colour, or -1 for another word.
int ShiftOf(std::string_view component) {
  if (component == "red") return 0;
  if (component == "green") return 8;
  if (component == "blue") return 16;
  return -1;
}

bool IsTint(std::string_view word) {
  static constexpr std::string_view kWords[] = {
      "ctint",         "cshade",         "cmaindarkone", "cmainlightone",      "cmaindarktwo",
      "cmainlighttwo", "caccentone",     "caccenttwo",   "caccentthree",       "caccentfour",
      "caccentfive",   "caccentsix",     "chyperlink",   "cfollowedhyperlink", "cbackgroundone",
      "ctextone",      "cbackgroundtwo", "ctexttwo"};
  return std::ranges::find(kWords, word) != std::end(kWords);
}

}  // namespace

void ColourTable::Read(Tokenizer& tokens) {
  colours_.clear();
  tints_.clear();
  Colour colour = kAutoColour;
  std::string tint;
  const auto component = [&](const Token& word) {
    if (IsTint(word.text)) tint += SourceOf(word);
    const int shift = ShiftOf(word.text);
    if (shift < 0) return;
    if (colour == kAutoColour) colour = 0;
    colour &= ~(Colour{0xFF} << shift);
    colour |= static_cast<Colour>(std::clamp(word.number, 0, 255)) << shift;
  };
  const auto finish = [&] {
    colours_.push_back(colour);
    tints_.push_back(std::exchange(tint, {}));
    colour = kAutoColour;
  };
  tokens.WhileInGroup([&](const Token& token) {
    if (EndsTable(token)) return false;
    if (token.kind == Token::Kind::Word) component(token);
    if (token.kind == Token::Kind::Text) {
      for (const char c : token.text) {
        if (c == ';') finish();
      }
    }
    return true;
  });
  if (colour != kAutoColour) finish();
}

bool ColourTable::HasTints() const {
  return std::ranges::any_of(tints_, [](const std::string& tint) { return !tint.empty(); });
}

const std::string& ColourTable::Tint(int number) const {
  static const std::string kNone;
  const bool inside = number >= 0 && static_cast<std::size_t>(number) < tints_.size();
  return inside ? tints_[static_cast<std::size_t>(number)] : kNone;
}

Colour ColourTable::operator[](int number) const {
  const bool inside = number >= 0 && static_cast<std::size_t>(number) < colours_.size();
  return inside ? colours_[static_cast<std::size_t>(number)] : kAutoColour;
}

}  // namespace lumenote

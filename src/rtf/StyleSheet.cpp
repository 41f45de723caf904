// Reading \stylesheet, and laying a style over a format.
#include "rtf/StyleSheet.h"

#include <utility>

namespace lumenote {
namespace {

template <class Value>
void Overlay(const Value& style, const Value& plain, Value& to) {
  if (!(style == plain)) to = style;
}

}  // namespace

void StyleSheet::Read(Tokenizer& tokens) {
  int depth = 0;
  std::size_t from = 0;
  tokens.WhileInGroup([&](const Token& token) {
    if (token.kind == Token::Kind::Open && ++depth == 1) from = tokens.At();
    if (token.kind == Token::Kind::Close && --depth == 0) Add(tokens.Source(from, tokens.Start()));
    return depth > 0 || !EndsTable(token);
  });
}

/// An entry without a number is style 0 of paragraphs; styles of sections and tables are passed
/// over. A style with a word on widows comes from a word processor, which writes each style whole:
/// what is absent there has its default and not what the base gives.
void StyleSheet::Add(std::string_view source) {
  Style style;
  style.source = source;
  std::unordered_map<int, Style>* kind = &paragraphs_;
  int number = 0;
  bool whole = false;
  Tokenizer tokens(source);
  for (Token token = tokens.Next(); token.kind != Token::Kind::End; token = tokens.Next()) {
    if (token.kind != Token::Kind::Word) continue;
    if (token.text == "ds" || token.text == "ts") return;
    if (token.text == "widctlpar" || token.text == "nowidctlpar") whole = true;
    if (token.text == "sbasedon") style.base = token.number;
    if (token.text == "cs") kind = &characters_;
    if (token.text == "s" || token.text == "cs") number = token.number;
  }
  if (whole) style.base = -1;
  (*kind)[number] = std::move(style);
}

Style* StyleSheet::Find(Kind kind, int number) {
  auto& styles = kind == Kind::Paragraph ? paragraphs_ : characters_;
  const auto found = styles.find(number);
  return found == styles.end() ? nullptr : &found->second;
}

void ApplyStyle(const CharFormat& style, const CharFormat& plain, CharFormat& to) {
  Overlay(style.font, plain.font, to.font);
  Overlay(style.colour, plain.colour, to.colour);
  Overlay(style.highlight, plain.highlight, to.highlight);
  Overlay(style.size, plain.size, to.size);
  Overlay(style.offset, plain.offset, to.offset);
  Overlay(style.language, plain.language, to.language);
  Overlay(style.spacing, plain.spacing, to.spacing);
  Overlay(style.scale, plain.scale, to.scale);
  Overlay(style.underline, plain.underline, to.underline);
  to.effects = static_cast<std::uint16_t>(to.effects | style.effects);
}

void ApplyStyle(const ParagraphState& style, ParagraphState& to) {
  const ParagraphState plain;
  for (int i = 0; i < ParagraphState::kLengths; ++i) {
    Overlay(style.lengths[i], plain.lengths[i], to.lengths[i]);
  }
  Overlay(style.multipleLines, plain.multipleLines, to.multipleLines);
  Overlay(style.alignment, plain.alignment, to.alignment);
  Overlay(style.rightToLeft, plain.rightToLeft, to.rightToLeft);
  Overlay(style.bullet, plain.bullet, to.bullet);
  Overlay(style.list, plain.list, to.list);
  Overlay(style.level, plain.level, to.level);
  Overlay(style.tabs, plain.tabs, to.tabs);
}

}  // namespace lumenote

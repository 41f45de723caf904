// Words that give text the formats of styles.
#include <vector>

#include "rtf/Interpreter.h"
#include "rtf/Keywords.h"

namespace lumenote {

void Interpreter::Styles(int, const Token&) {
  const std::size_t from = tokens_.Start();
  styles_.Read(tokens_);
  if (!begun_) KeepInHead(GroupSource(from));
}

void Interpreter::ParagraphStyle(int, const Token& word) {
  BeginBody();
  if (target_ == RtfTarget::Document)
    EditParagraph().words = keeper_.With(word, State().paragraph.words);
  const StyleFormats* style = FormatsOf(StyleSheet::Kind::Paragraph, word.number);
  State().style = style;
  if (!style) return;
  ApplyStyle(style->paragraph, EditParagraph());
  ApplyCharacterStyle(*style);
}

void Interpreter::CharacterStyle(int, const Token& word) {
  if (target_ == RtfTarget::Document)
    EditCharacter().words = keeper_.With(word, State().character.words);
  const StyleFormats* style = FormatsOf(StyleSheet::Kind::Character, word.number);
  if (style) ApplyCharacterStyle(*style);
}

void Interpreter::ApplyCharacterStyle(const StyleFormats& style) {
  if (style.character.font != default_.font) State().page = style.page;
  ApplyStyle(style.character, PlainFormat(), EditCharacter());
}

/// A style is read once, behind those it is based on.
const StyleFormats* Interpreter::FormatsOf(StyleSheet::Kind kind, int number) {
  if (!appliesStyles_) return nullptr;
  constexpr std::size_t kMostBases = 16;
  std::vector<Style*> line;
  Style* style = styles_.Find(kind, number);
  while (style && !style->formats && line.size() < kMostBases) {
    line.push_back(style);
    style = styles_.Find(kind, style->base);
  }
  const StyleFormats* base = style ? style->formats.get() : nullptr;
  for (; !line.empty(); line.pop_back()) {
    if (!line.back()->formats) ResolveStyle(base, *line.back());
    base = line.back()->formats.get();
  }
  return base;
}

/// Reads the words of the style on top of its base, in a group of its own.
void Interpreter::ResolveStyle(const StyleFormats* base, Style& style) {
  GroupState state;
  state.character = base ? base->character : PlainFormat();
  if (base) state.paragraph = base->paragraph;
  state.page = base ? base->page : CodePage(documentPage_);
  groups_.push_back(state);
  Tokenizer tokens(style.source);
  for (Token token = tokens.Next(); token.kind != Token::Kind::End; token = tokens.Next()) {
    if (token.kind != Token::Kind::Word) continue;
    const Keyword* keyword = FindKeyword(token.text);
    if (keyword && keyword->formats) (this->*keyword->handler)(keyword->value, token);
  }
  style.formats = std::make_unique<StyleFormats>(
      StyleFormats{State().character, State().paragraph, State().page});
  groups_.pop_back();
}

}  // namespace lumenote

// Words that say what their group is: tables, lists, things skipped and things kept.
#include "rtf/read/Interpreter.h"
#include "rtf/read/KeptSource.h"

namespace lumenote {
/// The group's text is text as any other.
void Interpreter::EnterGroup(int, const Token&) {}

void Interpreter::SkipGroup(int, const Token&) { tokens_.SkipGroup(); }

/// \upr holds the text twice: first for readers without Unicode.
void Interpreter::SkipAlternative(int, const Token&) {
  if (tokens_.Next().kind != Token::Kind::Open) return tokens_.Unread();
  tokens_.SkipGroup();
  tokens_.Next();
}

/// The first group says what the paragraph is.
void Interpreter::Numbering(int, const Token&) {
  const std::size_t from = tokens_.Start();
  bool bullet = false;
  tokens_.ForEachInGroup([&](const Token& token) {
    if (token.kind == Token::Kind::Word && token.text == "pnlvlblt") bullet = true;
  });
  ParagraphState& paragraph = EditParagraph();
  if (paragraph.bullet || paragraph.numbered) return;
  paragraph.bullet = bullet;
  paragraph.numbered = !bullet;
  if (!bullet && target_ == RtfTarget::Document)
    paragraph.format.words = words_.WithNumbering(GroupSource(from), paragraph.format.words);
  Outer().paragraph = paragraph;
  Outer().paragraphKnown = false;
}

void Interpreter::Fonts(int, const Token&) {
  const std::size_t from = tokens_.At();
  ++laid_;
  if (head_.fontTable.empty())
    head_.page = documentPage_;
  else
    head_.fontTable += "}\r\n{\\fonttbl ";
  fonts_.Read(tokens_, formats_.fonts, head_.page);
  head_.fontTable += KeptSource(tokens_.Source(from, tokens_.At()), State().fallback).Closed();
  UseDefaultFont(Outer());
}

void Interpreter::Colours(int, const Token&) {
  ++laid_;
  colours_.Read(tokens_);
}

/// A word of the body behind the entries shows that the table's brace is lost.
void Interpreter::PassTable() {
  int depth = 0;
  tokens_.WhileInGroup([&](const Token& token) {
    if (token.kind == Token::Kind::Open) ++depth;
    if (token.kind == Token::Kind::Close) --depth;
    return depth > 0 || !EndsTable(token);
  });
}

void Interpreter::Styles(int, const Token&) {
  const std::size_t from = tokens_.Start();
  PassTable();
  if (!begun_) KeepInHead(GroupSource(from));
}

// Lists that come behind the first text would be others when the note is written and read again.

void Interpreter::Lists(int, const Token&) {
  if (begun_) return tokens_.SkipGroup();
  const std::size_t from = tokens_.Start();
  lists_.ReadLists(tokens_);
  KeepInHead(GroupSource(from));
}

void Interpreter::ListOverrides(int, const Token&) {
  if (begun_) return tokens_.SkipGroup();
  const std::size_t from = tokens_.Start();
  lists_.ReadOverrides(tokens_);
  KeepInHead(GroupSource(from));
}

}  // namespace lumenote

// Words that give their group a meaning: tables, lists, groups to skip or keep.
#include <utility>

#include "rtf/read/Interpreter.h"
#include "rtf/read/KeptSource.h"
#include "rtf/read/Keywords.h"
#include "rtf/read/tables/TableTail.h"

namespace lumenote {
/// The group's text is ordinary text.
void Interpreter::EnterGroup(int, const Token&) {}

/// The same; a row's definition in it is that of the nested row that ends there, even if cells
/// follow it.
void Interpreter::NestedRow(int, const Token&) { State().inNestedRow = true; }

void Interpreter::SkipGroup(int, const Token&) { tokens_.SkipGroup(); }

/// \upr contains the text twice; the first is for readers without Unicode. A group that shows
/// nothing, such as a bookmark, is kept in both forms, with a \uc that holds for both before them.
void Interpreter::SkipAlternative(int, const Token&) {
  const std::size_t from = tokens_.Start();
  const std::size_t behind = tokens_.At();
  Token next = tokens_.Next();
  while (next.kind == Token::Kind::Word && next.text == "uc") next = tokens_.Next();
  if (next.kind != Token::Kind::Open) return tokens_.GoTo(behind);
  const std::size_t inside = tokens_.At();
  const bool aside = AtAside();
  tokens_.GoTo(aside ? behind : inside);
  tokens_.SkipGroup();
  if (aside)
    items_.Keep(KeptItem::Kind::Group, GroupSource(from));
  else
    tokens_.Next();
}

/// Whether the group that has just opened shows nothing. Reads its first words.
bool Interpreter::AtAside() {
  Token token = tokens_.Next();
  const bool starred = token.kind == Token::Kind::Symbol && token.byte == '*';
  if (starred) token = tokens_.Next();
  if (token.kind != Token::Kind::Word) return false;
  const Keyword* keyword = FindKeyword(token.text);
  if (!keyword || !keyword->opensGroup) return starred;
  return keyword->handler == &Interpreter::KeepAside ||
         keyword->handler == &Interpreter::KeepDestination;
}

/// The first such group determines the paragraph.
void Interpreter::Numbering(int, const Token&) {
  if (!wasOpened_ && !wasStarred_) return;
  const std::size_t from = tokens_.Start();
  bool bullet = false;
  tokens_.ForEachInGroup([&](const Token& token) {
    if (token.kind == Token::Kind::Word && token.text == "pnlvlblt") bullet = true;
  });
  ParagraphState& paragraph = EditParagraph();
  if (paragraph.bullet || paragraph.numbered) return;
  paragraph.bullet = bullet;
  paragraph.numbered = !bullet;
  if (!bullet)
    paragraph.format.words = words_.WithNumbering(GroupSource(from), paragraph.format.words);
  Outer().paragraph = paragraph;
  Outer().paragraphKnown = false;
  Outer().paragraphEdit = State().paragraphEdit;
}

void Interpreter::Fonts(int, const Token&) {
  const std::size_t from = tokens_.At();
  ++contentCount_;
  if (head_.fontTable.empty())
    head_.page = documentPage_;
  else
    head_.fontTable += "}\r\n{\\fonttbl ";
  fonts_.Read(tokens_, formats_.fonts, head_.page);
  head_.fontTable += KeptSource(tokens_.Source(from, tokens_.At()), State().fallback).Closed();
  UseDefaultFont(Outer());
}

void Interpreter::Colours(int, const Token&) {
  ++contentCount_;
  colours_.Read(tokens_);
  needsTables_ |= colours_.HasTints();
}

/// A body word among the entries reveals that the table's closing brace is missing.
void Interpreter::PassTable() {
  int depth = 0;
  tokens_.WhileInGroup([&](const Token& token) {
    if (token.kind == Token::Kind::Open) ++depth;
    if (token.kind == Token::Kind::Close) --depth;
    return depth > 0 || !EndsTable(token);
  });
}

/// After a group of the head, or a surplus "}" there.
void Interpreter::SkipTableTail(bool surplus) {
  if (placingMarker_ || tokens_.At() < tailKnown_) return;
  const TableTail tail = FindTableTail(tokens_, surplus);
  tailKnown_ = tail.end;
  if (tail.found) tokens_.GoTo(tail.end);
}

void Interpreter::Styles(int, const Token&) {
  const std::size_t from = tokens_.Start();
  PassTable();
  KeepInHead(GroupSource(from));
}

// Lists defined after the first text would change their meaning when the note is written and read
// again.

void Interpreter::Lists(int, const Token&) {
  if (begun_) return tokens_.SkipGroup();
  KeepLists();
}

void Interpreter::ListOverrides(int, const Token&) {
  if (begun_) return tokens_.SkipGroup();
  KeepLists();
}

void Interpreter::KeepLists() {
  const std::size_t from = tokens_.Start();
  tokens_.SkipGroup();
  std::string source = GroupSource(from);
  lists_.Read(source);
  KeepInHead(std::move(source));
}

}  // namespace lumenote

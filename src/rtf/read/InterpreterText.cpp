// Words that are text: characters, breaks, cells.
#include <algorithm>
#include <utility>

#include "rtf/read/Interpreter.h"
#include "rtf/read/KeptSource.h"

namespace lumenote {
void Interpreter::Character(int value, const Token&) { Put(static_cast<char16_t>(value)); }

void Interpreter::Unicode(int, const Token& word) {
  constexpr int kFirst = -0x8000;  // units from 0x8000 are often written as negative numbers
  constexpr int kLast = 0x10FFFF;
  const int number = word.number < kFirst || word.number > kLast ? 0xFFFD : word.number;
  if (number == '\r' || number == '\n') {
    Break(0, word);
  } else if (number <= 0xFFFF) {
    Put(static_cast<char16_t>(number));
  } else {
    Put(static_cast<char16_t>(0xD7C0 + (number >> 10)));
    Put(static_cast<char16_t>(0xDC00 + (number & 0x3FF)));
  }
  swallow_ = State().fallback;
}

void Interpreter::Break(int, const Token&) { BreakAs({}); }

/// What comes ahead of any break. Returns false where there can be none: a list number does not end
/// its paragraph. Even one that comes to nothing would be a break elsewhere, so it counts as laid.
bool Interpreter::ReachBreak() {
  if (numbering_) return false;
  BeginBody();
  if (!marker_.empty()) PlaceMarker();
  ++laid_;
  return true;
}

void Interpreter::BreakAs(Kept kept) {
  if (!ReachBreak()) return;
  Lay();
  const bool plain = !items_.Pending() && kept == Kept();
  body_.Break({plain ? CharacterNumber() : CharacterWith(kept), ParagraphNumber()});
}

/// The end of a page, column or section ends a paragraph that has begun.
void Interpreter::EndParagraph(int value, const Token& word) {
  if (!ReachBreak()) return;
  const auto kind = static_cast<KeptItem::Kind>(value);
  if (!body_.Started()) return items_.Keep(kind, SourceOf(word));
  const ItemId self = formats_.items.Chain({{.kind = kind, .source = SourceOf(word)}});
  BreakAs({.self = self, .kind = Kept::Kind::Break});
}

void Interpreter::Cell(int nested, const Token&) {
  if (!ReachBreak()) return;
  Lay();
  body_.Cell(CharacterWith({.paragraph = ParagraphNumber(),
                            .kind = Kept::Kind::Cell,
                            .nested = static_cast<std::uint8_t>(nested)}));
}

/// The row's break stands for the end of its last cell too, whose format the paragraph has, as deep
/// as the row is. Empty rows are ignored. A definition that came ahead of the first cell alone
/// would be lost with the first character of that, so the break has it too.
void Interpreter::Row(int nested, const Token&) {
  if (!ReachBreak() || !body_.Started()) return;
  Lay();
  Kept row{.kind = Kept::Kind::Row, .nested = static_cast<std::uint8_t>(nested)};
  KeptItems items = items_.Take();
  const bool defined = nested != 0 || row_.empty() || !RowDefinition(items).empty();
  if (!defined) items.insert(items.begin(), {.kind = KeptItem::Kind::Row, .source = row_});
  row.self = formats_.items.Chain(std::move(items));
  ParaId paragraph = ParagraphNumber();
  if (const auto cell = body_.LastCell()) {
    const Kept& last = formats_.kept[formats_.characters[*cell].kept];
    row.before = last.before;
    paragraph = last.paragraph;
  }
  ParaFormat format = formats_.paragraphs[paragraph];
  const int told = format.nesting;
  const int deep = std::clamp(std::max(told, State().paragraph.nesting), 2, 0xFF);
  format.nesting = static_cast<std::uint8_t>(nested ? deep : std::min(told, 1));
  body_.Row({CharacterWith(row), formats_.paragraphs.Intern(format)});
  if (nested == 0) row_.clear();
}

}  // namespace lumenote

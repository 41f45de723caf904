// Control words for text: characters, breaks, cells.
#include <algorithm>
#include <iterator>
#include <utility>

#include "rtf/read/Interpreter.h"
#include "rtf/read/KeptSource.h"

namespace lumenote {
namespace {

bool OfRow(const KeptItem& item) {
  return item.kind == KeptItem::Kind::Row || item.kind == KeptItem::Kind::Words;
}

}  // namespace

void Interpreter::Character(int value, const Token&) {
  Put(static_cast<char16_t>(value), Spelling::Name);
}

void Interpreter::Unicode(int, const Token& word) {
  constexpr int kFirst = -0x8000;  // units from 0x8000 on are often written as negative numbers
  constexpr int kLast = 0x10FFFF;
  const int number = word.number < kFirst || word.number > kLast ? 0xFFFD : word.number;
  if (number == '\r' || number == '\n') {
    Break(0, word);
  } else if (number > 0xFFFF) {
    Put(static_cast<char16_t>(0xD7C0 + (number >> 10)));
    Put(static_cast<char16_t>(0xDC00 + (number & 0x3FF)));
  } else if (number != 0) {
    Put(static_cast<char16_t>(number), Spelling::Code);
  }
  swallow_ = State().fallback;
}

void Interpreter::Break(int, const Token&) { BreakAs({}); }

/// Prepares for a break. Returns false inside a list number, which cannot end its paragraph. Counts
/// as content even if the break has no effect, since it would have one elsewhere.
bool Interpreter::PrepareBreak() {
  if (numbering_) return false;
  BeginBody();
  if (!marker_.empty()) PlaceMarker();
  ++contentCount_;
  return true;
}

void Interpreter::BreakAs(Kept kept) {
  if (!PrepareBreak()) return;
  CountContent();
  const bool plain = !items_.Pending() && kept == Kept();
  body_.Break({plain ? CharacterNumber() : CharacterWith(kept), EndedParagraph()});
}

/// A page, column or section break ends a paragraph that has begun.
void Interpreter::EndParagraph(int value, const Token& word) {
  if (!PrepareBreak()) return;
  const auto kind = static_cast<KeptItem::Kind>(value);
  if (!body_.Started()) return items_.Keep(kind, SourceOf(word));
  const ItemId self = formats_.items.Chain({{.kind = kind, .source = SourceOf(word)}});
  BreakAs({.self = self, .kind = Kept::Kind::Break});
}

void Interpreter::Cell(int nested, const Token&) {
  if (!PrepareBreak()) return;
  CountContent();
  body_.Cell(CharacterWith({.paragraph = EndedParagraph(),
                            .kind = Kept::Kind::Cell,
                            .nested = static_cast<std::uint8_t>(nested)}));
}

/// A row's break also ends its last cell, whose format and depth the paragraph takes. Empty rows
/// are ignored. The break repeats a definition that preceded only the first cell, since deleting
/// the first character of that cell would lose it.
void Interpreter::Row(int nested, const Token&) {
  if (!PrepareBreak() || !body_.Started()) return;
  CountContent();
  Kept row{.kind = Kept::Kind::Row, .nested = static_cast<std::uint8_t>(nested)};
  KeptItems items = items_.Take();
  if (nested != 0) {
    std::ranges::move(nestedRow_.Take(), std::back_inserter(items));
    std::stable_partition(items.begin(), items.end(),
                          [](const KeptItem& item) { return !OfRow(item); });
  }
  const bool defined = nested != 0 || row_.source.empty() || !RowDefinition(items).source.empty();
  if (!defined) items.insert(items.begin(), row_);
  row.self = formats_.items.Chain(std::move(items));
  ParaId paragraph = EndedParagraph();
  if (const auto cell = body_.LastCell()) {
    const Kept& last = formats_.kept[formats_.characters[*cell].kept];
    row.before = last.before;
    paragraph = last.paragraph;
  }
  ParaFormat format = formats_.paragraphs[paragraph];
  const int declared = format.nesting;
  const int deep = std::clamp(std::max(declared, State().paragraph.nesting), 2, 0xFF);
  format.nesting = static_cast<std::uint8_t>(nested ? deep : std::min(declared, 1));
  body_.Row({CharacterWith(row), formats_.paragraphs.Intern(format)});
  if (nested == 0) row_ = {};
}

}  // namespace lumenote

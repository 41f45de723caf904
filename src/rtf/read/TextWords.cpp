// Words that are text: characters, breaks, cells.
#include <algorithm>
#include <utility>

#include "rtf/kept/KeptSource.h"
#include "rtf/read/Interpreter.h"

namespace lumenote {
namespace {

std::string EndOfCell(int nested) { return nested != 0 ? "\\nestcell" : "\\cell"; }

/// The end of a nested row, behind its last cell. Readers want the table told anew before it.
std::string NestedRow(const std::string& definition, int nesting) {
  return "\\pard\\intbl\\itap" + std::to_string(nesting) + "{\\*\\nesttableprops" + definition +
         "\\nestrow}{\\nonesttables\\par}";
}

}  // namespace

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
  const bool plain = !keeper_.Pending() && kept == Kept();
  body_.Break({plain ? CharacterNumber() : CharacterWith(std::move(kept)), ParagraphNumber()});
}

/// The end of a page, column or section ends a paragraph that has begun.
void Interpreter::EndParagraph(int, const Token& word) {
  if (!ReachBreak()) return;
  if (!body_.Started()) return keeper_.Keep(SourceOf(word));
  BreakAs({.instead = SourceOf(word)});
}

void Interpreter::Cell(int nested, const Token&) {
  if (!ReachBreak()) return;
  Lay();
  body_.Cell(CharacterWith(
      {.instead = EndOfCell(nested), .paragraph = ParagraphNumber(), .kind = Kept::Kind::Cell}));
}

/// The row's break stands for the end of its last cell too, whose format the paragraph has, as deep
/// as the row is. A row that holds nothing is none. A definition that came ahead of the first cell
/// alone would be lost with the first character of that, so the break has it too.
void Interpreter::Row(int nested, const Token&) {
  if (!ReachBreak() || !body_.Started()) return;
  Lay();
  Kept kept{.instead = EndOfCell(nested)};
  ParaId paragraph = ParagraphNumber();
  std::string definition = keeper_.Take();
  if (nested == 0 && RowDefinition(definition).empty()) definition.insert(0, row_);
  if (const auto cell = body_.LastCell()) {
    kept = formats_.kept[formats_.characters[*cell].kept];
    paragraph = std::exchange(kept.paragraph, 0);
    keeper_.Keep(std::exchange(kept.before, {}));
  }
  kept.kind = Kept::Kind::Row;
  ParaFormat format = formats_.paragraphs[paragraph];
  const int told = format.nesting;
  const int deep = std::clamp(std::max(told, State().paragraph.nesting), 2, 0xFF);
  format.nesting = static_cast<std::uint8_t>(nested ? deep : std::min(told, 1));
  kept.instead += nested ? NestedRow(definition, deep) : definition + "\\row";
  body_.Row({CharacterWith(std::move(kept)), formats_.paragraphs.Intern(format)});
  if (nested == 0) row_.clear();
}

}  // namespace lumenote

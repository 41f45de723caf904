// Words that are text: characters, breaks, cells.
#include "rtf/Interpreter.h"

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

void Interpreter::Break(int, const Token&) {
  if (!marker_.empty()) BeforeText();
  body_.Break(Formats());
}

void Interpreter::EndParagraph(int, const Token&) {
  if (!marker_.empty()) BeforeText();
  body_.EndParagraph(Formats());
}

void Interpreter::Cell(int, const Token&) {
  if (!marker_.empty()) BeforeText();
  body_.Cell(CharacterNumber());
}

void Interpreter::Row(int, const Token&) {
  if (!marker_.empty()) BeforeText();
  body_.Row(Formats());
}

}  // namespace lumenote

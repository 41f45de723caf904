// The control words that the reader knows.
#pragma once
#include <string_view>

#include "rtf/read/Interpreter.h"

namespace lumenote {

struct Keyword {
  std::string_view name;
  void (Interpreter::*handler)(int value, const Token& word);
  int value = 0;
  bool opensGroup = false;  // may stand behind \*
};

/// Null for a word that means nothing here.
const Keyword* FindKeyword(std::string_view name);

/// Whether a word, perhaps behind \*, makes the rest of its group something else than text of the
/// body.
bool HidesText(std::string_view word, bool starred);

}  // namespace lumenote

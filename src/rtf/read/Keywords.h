// The control words that the reader knows.
#pragma once
#include <string_view>

#include "rtf/read/Interpreter.h"

namespace lumenote {

struct Keyword {
  std::string_view name;
  void (Interpreter::*handler)(int value, const Token& word);
  int value = 0;
  bool opensGroup = false;  // may follow \*
};

/// Null for a word without meaning here.
const Keyword* FindKeyword(std::string_view name);

/// Whether a word, optionally after \*, makes the rest of its group something other than body text.
bool HidesText(std::string_view word, bool starred);

}  // namespace lumenote

// Kept source with other numbers of entries in the head's tables.
#pragma once
#include <functional>
#include <string>
#include <string_view>

#include "document/kept/EntryWords.h"

namespace lumenote {

struct NumberMap {
  std::function<int(HeadTable, int)> number;
  /// Said behind \plain, where the source leaves it to its default font; -1: nothing is.
  int plainFont = -1;
};
std::string WithNumbers(std::string_view source, const NumberMap& map);

}  // namespace lumenote

// Which lists of an RTF source are bullets.
#pragma once
#include <cstdint>
#include <unordered_map>

#include "rtf/source/Tokenizer.h"

namespace lumenote {

class ListTable {
 public:
  /// Reads the current \listtable group up to its closing brace.
  void ReadLists(Tokenizer& tokens);
  /// The same for \listoverridetable, which defines the list numbers used by \ls.
  void ReadOverrides(Tokenizer& tokens);

  /// Whether paragraphs of list \ls`number` have a bullet at `level` (\ilvl).
  bool IsBullet(int number, int level) const;

 private:
  std::unordered_map<int, std::uint32_t> bullets_;  // by \listid: a bit per bullet level
  std::unordered_map<int, int> ids_;                // by \ls
};

}  // namespace lumenote

// What the popup of a misspelt word offers.
#pragma once
#include <string>
#include <vector>

namespace lumenote {

struct SpellingEntry {
  enum class Act { None, Mend, MendAndLearn, AddWord, OpenNoteMenu };
  Act act = Act::None;  // an entry without one cannot be chosen, but may have entries of its own
  std::u16string caption{};
  std::u16string right{};   // to mend the word with
  bool startsPart = false;  // a line stands before it
  std::vector<SpellingEntry> entries{};
};

/// `suggestions` come best first; a note that is locked takes none.
std::vector<SpellingEntry> SpellingEntries(std::vector<std::u16string> suggestions, bool locked);

}  // namespace lumenote

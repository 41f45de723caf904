// Maps the styles of one style sheet to those of another, which grows by what it lacks.
#pragma once
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "document/kept/SourceNumbers.h"
#include "document/paste/EntryNumbers.h"

namespace lumenote {

/// A style is known by its kind and its name, whatever it says: paragraphs say themselves how they
/// look. The default style is that of the other sheet.
class StyleMerge {
 public:
  /// Both are sources with a \stylesheet group somewhere, and outlive this object.
  StyleMerge(std::string_view from, std::string_view to);

  /// Empty for a number without a style.
  std::optional<int> Map(int number);
  /// Takes an entry that the sheet still lacks, with its numbers mapped; empty if there is none.
  /// Mapping may add more.
  std::string TakeAdded(const NumberMap& map);

 private:
  using Name = std::pair<std::string_view, std::u16string>;  // with the word of its kind
  struct Entry {
    int number = 0;
    Name name;
    std::string_view source;
  };

  static std::vector<Entry> EntriesOf(std::string_view source);
  static Entry EntryOf(std::string_view source);
  int Add(const Entry& entry);

  std::unordered_map<int, Entry> from_;
  std::map<Name, int> names_;  // of the other sheet
  EntryNumbers numbers_;       // there
  std::unordered_map<int, int> known_;
  std::vector<std::string_view> added_;
};

}  // namespace lumenote

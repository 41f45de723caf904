// Maps the numbers of one head's tables to those of another, which grows by what it lacks.
#pragma once
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>

#include "document/FormatTables.h"
#include "document/paste/EntryNumbers.h"
#include "document/paste/ListMerge.h"
#include "document/paste/StyleMerge.h"

namespace lumenote {

/// An equal entry is reused, first of all under the same number, so that nothing changes within
/// one note; other entries are added as far as they are referred to.
class HeadMerge {
 public:
  /// `source` has the groups of the source's head; all of them outlive this object.
  HeadMerge(const KeptHead& from, std::string_view source, FormatTables& tables, HeadId to);

  /// Empty for a style or list that the source does not define; there is a font and a colour for
  /// every number.
  std::optional<int> Map(HeadTable table, int number);
  /// The same for all numbers of kept source.
  std::string Mapped(std::string_view source);
  /// The other head as it has become.
  HeadId Finish();

 private:
  int MapFont(int number);
  int AddFont(const KeptHead::Font& font);
  int MapColour(int number);
  void UseTables();
  NumberMap NumbersOfGroups();
  std::string AddedStyles();
  /// Puts entries into a group of the head; a group that there is not yet goes to `made`.
  void AddTo(std::string_view word, std::string_view opening, const std::string& entries,
             KeptItems& made);

  using Tinted = std::pair<Colour, std::string>;  // with the words before it

  const KeptHead& from_;
  FormatTables& tables_;
  HeadId unchanged_;
  KeptHead to_;
  KeptItems items_;  // of `to_`
  const std::string toSource_;
  std::unordered_map<FontId, int> fonts_;          // the first numbers in `to_`
  std::unordered_map<int, FontId> fontsByNumber_;  // in `to_`
  EntryNumbers fontNumbers_;
  std::map<Tinted, int> colours_;  // the first numbers in `to_`
  std::unordered_map<int, int> knownFonts_, knownColours_;
  StyleMerge styles_;
  ListMerge lists_;
  bool changed_ = false;
};

/// The groups of a head as one source.
std::string HeadSource(const KeptItems& items);

}  // namespace lumenote

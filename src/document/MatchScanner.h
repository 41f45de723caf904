// Finding one match after another in a list of leaves.
#pragma once
#include <string>
#include <string_view>

#include "document/LeafList.h"
#include "document/Search.h"

namespace lumenote {

/// Goes once through the leaves, which must stay as they are meanwhile; a match may cross leaves.
class MatchScanner {
 public:
  /// Starts at `from`, which lies in 0..the list's length.
  MatchScanner(const LeafList& leaves, std::u16string_view needle, SearchOptions options,
               Position from);

  /// Position of the next match that ends at `to` at the latest, behind the one before; -1 when
  /// there is none.
  Position Next(Position to);

 private:
  /// Both forms of a unit; the same twice when case matters.
  struct Cases {
    char16_t small = 0;
    char16_t capital = 0;
  };

  bool CanMatch() const;
  char16_t Fold(char16_t c) const;
  Cases CasesOf(char16_t folded) const;
  /// Where the needle may begin in `text`, at `at` or behind it; the text's end when nowhere.
  std::size_t NextCandidate(std::u16string_view text, std::size_t at) const;
  bool MatchesAt(std::size_t at) const;
  bool Same(std::u16string_view text, std::u16string_view part) const;
  void NextLeaf();

  SearchOptions options_;
  std::u16string needle_;  // folded, unless case matters
  Cases first_;            // of its first unit
  Cases second_;           // of its second unit, if it has one
  LeafCursor leaf_;
  std::size_t at_ = 0;     // in the leaf
  char16_t previous_ = 0;  // the unit before the leaf
};

}  // namespace lumenote

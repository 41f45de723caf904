// Finding one match after another in a list of leaves.
#pragma once
#include <string>
#include <string_view>
#include <tuple>

#include "document/Search.h"
#include "document/text/LeafList.h"

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
  /// Both forms of a character, the same twice when case matters. A form that has no byte is 0
  /// among bytes, which no text holds.
  template <class Unit>
  struct Cases {
    Unit small = 0;
    Unit capital = 0;
    bool Has(Unit c) const { return (c == small) | (c == capital); }
  };
  /// How the needle begins.
  template <class Unit>
  struct Opening {
    Cases<Unit> first;
    Cases<Unit> second;  // if it has one
  };

  bool CanMatch() const;
  char16_t Fold(char16_t c) const;
  template <class Unit>
  Opening<Unit> OpeningIn() const;
  /// Where the needle may begin in `text`, at `at` or behind it; the text's end when nowhere.
  template <class Unit>
  std::size_t NextCandidate(std::basic_string_view<Unit> text, std::size_t at) const;
  bool MatchesAt(std::size_t at) const;
  bool Same(TextView text, std::u16string_view part) const;
  void NextLeaf();

  SearchOptions options_;
  std::u16string needle_;  // folded, unless case matters
  std::tuple<Opening<char>, Opening<char16_t>> openings_;
  LeafCursor leaf_;
  std::size_t at_ = 0;     // in the leaf
  char16_t previous_ = 0;  // the unit before the leaf
};

}  // namespace lumenote

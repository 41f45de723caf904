// Finds one match after another in a list of leaves.
#pragma once
#include <string>
#include <string_view>
#include <tuple>

#include "document/Search.h"
#include "document/text/LeafList.h"

namespace lumenote {

/// Makes one pass over the leaves, which must not change meanwhile. Matches may span leaves.
class MatchScanner {
 public:
  /// Starts at `from`, which must lie in 0..the list's length.
  MatchScanner(const LeafList& leaves, std::u16string_view needle, SearchOptions options,
               Position from);

  /// Position of the next match that ends at or before `to`, after the previous one; -1 if there is
  /// none.
  Position Next(Position to);
  /// Leaves out `count` units behind the previous match.
  void Skip(Position count) { at_ += static_cast<std::size_t>(count); }

 private:
  /// Both cases of a character, equal if case matters. Among bytes, 0 stands for a case without a
  /// byte; no text contains it.
  template <class Unit>
  struct Cases {
    Unit small = 0;
    Unit capital = 0;
    bool Has(Unit c) const { return (c == small) | (c == capital); }
  };
  /// The first two characters of the needle.
  template <class Unit>
  struct NeedlePrefix {
    Cases<Unit> first;
    Cases<Unit> second;  // if the needle has one
  };

  bool CanMatch() const;
  char16_t Fold(char16_t c) const;
  template <class Unit>
  NeedlePrefix<Unit> OpeningIn() const;
  /// The first possible start of a match in `text` at or after `at`; the text's end if there is
  /// none.
  template <class Unit>
  std::size_t NextCandidate(std::basic_string_view<Unit> text, std::size_t at) const;
  bool MatchesAt(std::size_t at) const;
  bool Same(TextView text, std::u16string_view part) const;
  void NextLeaf();

  SearchOptions options_;
  std::u16string needle_;  // case-folded, unless case matters
  std::tuple<NeedlePrefix<char>, NeedlePrefix<char16_t>> openings_;
  LeafCursor leaf_;
  std::size_t at_ = 0;     // in the leaf
  char16_t previous_ = 0;  // the unit before the leaf, if the scan comes to its start
};

}  // namespace lumenote

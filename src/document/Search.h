// Linear search of the document, optionally case-folded and for whole words.
#pragma once
#include <functional>
#include <optional>
#include <string_view>

#include "document/Document.h"

namespace lumenote {

struct SearchOptions {
  bool wholeWord = false;
  bool matchCase = false;
};

/// Position of the first match wholly inside `from`..`to` (clipped); -1 if there is none or
/// `needle` is empty. CR and LF match only together, as a break; likewise the halves of a surrogate
/// pair. So a needle that begins or ends with half of either finds nothing. Without `matchCase` a
/// character also matches its other case. A whole word has no letter, digit or underscore on either
/// side, even outside the range.
Position FindText(const Document& document, std::u16string_view needle, Position from, Position to,
                  SearchOptions options);

/// From the first match to the end of the last one.
struct Replacement {
  Selection range;
  Fragment fragment;      // what it becomes
  Position count = 0;     // of matches replaced
  Position another = -1;  // where the next match will be; -1 if there is none
};

/// The format of text typed over a character of this one; empty if that does more than to replace
/// the character.
using TypedOver = std::function<std::optional<CharId>(CharId)>;

/// Replaces up to `most` matches in one pass that builds new leaves. Makes what a loop makes that
/// selects a match, types `replacement` over it and searches on from where the match ended,
/// whatever the replacement's length. Empty where that may take the loop itself: for texts with a
/// break or the end of a table's cell, the same text but for its case, a match that may begin in a
/// replacement, whole words that begin with no letter, a character that `typed` refuses.
std::optional<Replacement> ReplaceAllText(const Document& document, std::u16string_view needle,
                                          std::u16string_view replacement, SearchOptions options,
                                          Position most, const TypedOver& typed);

}  // namespace lumenote

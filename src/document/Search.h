// Linear search of the document, optionally case-folded and for whole words.
#pragma once
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

/// Replaces every match, left to right without rescanning replacements, in one pass that builds new
/// leaves. Returns the whole document as a fragment, and the count of matches. A replacement takes
/// the format of the match's first character; a break in it (a lone CR or LF is one) takes the
/// paragraph format where the match begins.
struct Replacement {
  Fragment whole;
  Position count = 0;
};
Replacement ReplaceAllText(const Document& document, std::u16string_view needle,
                           std::u16string_view replacement, SearchOptions options);

}  // namespace lumenote

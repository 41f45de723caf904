// Searching the document: linear, case folded on request, whole words on request.
#pragma once
#include <string_view>

#include "document/Document.h"

namespace lumenote {

struct SearchOptions {
  bool wholeWord = false;
  bool matchCase = false;
};

/// Position of the first match that lies wholly in `from`..`to`, which are clipped; -1 when there
/// is none or `needle` is empty. CR and LF match a break only together, as the halves of a
/// surrogate pair match a pair: a needle that begins or ends with one of two finds nothing. Without
/// `matchCase` a character matches its other case; a whole word has no letter, digit or underscore
/// on either side, be it outside the range.
Position FindText(const Document& document, std::u16string_view needle, Position from, Position to,
                  SearchOptions options);

/// Replaces every match, from left to right without looking again at what was put in, in one pass
/// that builds new leaves; returns the fragment for the whole document and the count of matches.
/// The replacement takes the format of the match's first character, a break in it (a lone CR or LF
/// is one) the format of the paragraph where the match begins.
struct Replacement {
  Fragment whole;
  Position count = 0;
};
Replacement ReplaceAllText(const Document& document, std::u16string_view needle,
                           std::u16string_view replacement, SearchOptions options);

}  // namespace lumenote

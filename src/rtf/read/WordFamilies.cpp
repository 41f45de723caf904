#include "rtf/read/WordFamilies.h"

#include <algorithm>
#include <iterator>

namespace lumenote {
namespace {

using Names = std::string_view;

// Word families of rows, cells, tables, section breaks, page numbers and page borders.
constexpr Names kAnchoredPrefixes[] = {"tr",       "cl",     "tbl",    "sbk",
                                       "pgn",      "pgbrdr", "vertal", "sectdefault",
                                       "sectline", "sftn",   "saftn"};
constexpr Names kShadings = "bg";  // paragraph patterns
constexpr Names kBorders[] = {"brdr", "brsp"};
constexpr Names kBorderOwners[] = {"box", "brdr", "trbrdr", "clbrdr", "pgbrdr", "chbrdr"};

template <std::size_t Size>
bool HasPrefix(const Names (&beginnings)[Size], Names word) {
  return std::ranges::any_of(beginnings,
                             [&](Names beginning) { return word.starts_with(beginning); });
}

}  // namespace

WordScope FamilyScope(std::string_view word) {
  if (HasPrefix(kAnchoredPrefixes, word)) return WordScope::Anchored;
  if (HasPrefix(kBorders, word)) return WordScope::Border;
  return word.starts_with(kShadings) ? WordScope::Paragraph : WordScope::None;
}

bool NamesBorder(std::string_view word) { return HasPrefix(kBorderOwners, word); }

bool MayRepeat(std::string_view word) { return HasPrefix(kBorders, word); }

}  // namespace lumenote

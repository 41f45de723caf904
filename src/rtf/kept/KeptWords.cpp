#include "rtf/kept/KeptWords.h"

#include <algorithm>
#include <iterator>

#include "rtf/kept/KeptSource.h"

namespace lumenote {
namespace {

using Names = std::string_view;

// Families of words: rows, cells, tables, section breaks, page numbers, page borders.
constexpr Names kPlaceBeginnings[] = {"tr",     "cl",          "tbl",      "sbk",  "pgn",  "pgbrdr",
                                      "vertal", "sectdefault", "sectline", "sftn", "saftn"};
constexpr Names kShadings = "bg";  // patterns of paragraphs
constexpr Names kBorders[] = {"brdr", "brsp"};

constexpr Names kTableWords[] = {"af",    "brdrcf",    "cb",        "cbpat",     "cf",
                                 "cfpat", "chcbpat",   "chcfpat",   "clcbpat",   "clcfpat",
                                 "cs",    "f",         "highlight", "ls",        "pnf",
                                 "s",     "trcbpat",   "trcfpat",   "ts",        "ulc",
                                 "adeff", "stshfdbch", "stshfloch", "stshfhich", "stshfbi"};

constexpr Names kRow = "trowd";
constexpr Names kPageGroups[] = {"{\\header", "{\\footer"};
constexpr Names kBreaks[] = {"page", "column", "sect"};
constexpr Names kSection = "sectd";

template <std::size_t Size>
bool Holds(const Names (&names)[Size], Names word) {
  return std::find(std::begin(names), std::end(names), word) != std::end(names);
}

template <std::size_t Size>
bool BeginsLike(const Names (&beginnings)[Size], Names word) {
  return std::any_of(std::begin(beginnings), std::end(beginnings),
                     [&](Names beginning) { return word.starts_with(beginning); });
}

constexpr Names kDirections[] = {"rtlch", "ltrch"};
constexpr Names kScripts[] = {"loch", "hich", "dbch"};

bool IsLetter(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }

/// Whether a place in `words` lies in the group of a numbering.
bool InGroup(const std::string& words, std::size_t at) {
  const auto end = words.begin() + static_cast<std::ptrdiff_t>(at);
  return std::count(words.begin(), end, '{') > std::count(words.begin(), end, '}');
}

/// Where the word called `name` stands in `words`, or npos.
std::size_t Find(Names name, const std::string& words) {
  const std::string word = "\\" + std::string(name);
  for (std::size_t at = words.find(word); at != words.npos; at = words.find(word, at + 1)) {
    const std::size_t end = at + word.size();
    const bool whole = end == words.size() || !IsLetter(words[end]);
    if (whole && !InGroup(words, at)) return at;
  }
  return words.npos;
}

/// Where the first of the words stands behind `from`, or the end.
template <std::size_t Size>
std::size_t FirstOf(const Names (&names)[Size], const std::string& words, std::size_t from) {
  std::size_t first = words.size();
  for (const Names name : names) {
    const std::size_t at = Find(name, words);
    if (at != words.npos && at >= from) first = std::min(first, at);
  }
  return first;
}

/// Where the part that begins at `from` ends: at the next marker.
std::size_t PartEnd(const std::string& words, std::size_t from) {
  return std::min(FirstOf(kDirections, words, from + 1), FirstOf(kScripts, words, from + 1));
}

/// Whether a word ends a page, column or section, so that another begins.
bool IsBreak(Names word) { return Holds(kBreaks, word); }
/// Whether a word begins a page, column or section, or the format of a section.
bool Begins(Names word) { return IsBreak(word) || word == kSection; }

/// Calls `visit` for the words outside groups.
template <class Visit>
void ForEachWord(std::string_view source, Visit visit) {
  Tokenizer tokens(source);
  for (Token token = tokens.Next(); token.kind != Token::Kind::End; token = tokens.Next()) {
    if (token.kind == Token::Kind::Open) tokens.SkipGroup();
    if (token.kind == Token::Kind::Word) visit(token);
  }
}

template <class Test>
bool HoldsWord(std::string_view source, Test test) {
  bool holds = false;
  ForEachWord(source, [&](const Token& word) { holds |= test(word.text); });
  return holds;
}

}  // namespace

bool IsMarker(std::string_view word) { return Holds(kDirections, word) || Holds(kScripts, word); }

std::size_t HighPart(const std::string& words) {
  const std::size_t at = Find("hich", words);
  return at != words.npos && PartEnd(words, at) == words.size() ? at : words.size();
}

std::string WithMarker(std::string words, std::string_view marker) {
  std::string part = "\\" + std::string(marker);
  const std::size_t from = Find(marker, words);
  if (from != words.npos) {
    const std::size_t end = PartEnd(words, from);
    part = words.substr(from, end - from);
    words.erase(from, end - from);
  }
  return words.insert(Holds(kScripts, marker) ? words.size() : FirstOf(kScripts, words, 0), part);
}

std::string WithAssociated(std::string words, std::string_view marker, const Token& word) {
  const std::size_t from = Find(marker, words);
  if (marker.empty() || from == words.npos) return words;
  const std::size_t end = PartEnd(words, from);
  std::string part = words.substr(from, end - from);
  EraseWord(word.text, part);
  return words.replace(from, end - from, part + SourceOf(word));
}

/// Of groups, only those of numberings stand among words.
std::string WithoutNumbering(std::string_view words) {
  std::string others;
  ForEachWord(words, [&](const Token& word) { others += SourceOf(word); });
  return others;
}

void EraseWord(std::string_view name, std::string& words) {
  const std::size_t at = Find(name, words);
  if (at == words.npos) return;
  const std::size_t end = words.find_first_not_of("-0123456789", at + 1 + name.size());
  words.erase(at, std::min(end, words.size()) - at);
}

bool BeginsParagraph(std::string_view source) { return HoldsWord(source, IsBreak); }

bool BeginsPlace(std::string_view source) { return HoldsWord(source, Begins); }

std::string BeginningIn(std::string_view source, std::string_view there) {
  const bool breaks = !HoldsWord(there, IsBreak);
  const bool format = !HoldsWord(there, [](Names word) { return word == kSection; });
  std::string beginning;
  bool ofRow = false;
  Tokenizer tokens(source);
  for (Token token = tokens.Next(); token.kind != Token::Kind::End; token = tokens.Next()) {
    if (token.kind == Token::Kind::Open) {
      const std::size_t from = tokens.Start();
      tokens.SkipGroup();
      tokens.Next();
      const std::string_view group = tokens.Source(from, tokens.At());
      if (format && BeginsLike(kPageGroups, group)) beginning += group;
    } else if (token.kind == Token::Kind::Word) {
      ofRow = token.text == kRow || (ofRow && !Begins(token.text));
      if (!ofRow && (IsBreak(token.text) ? breaks : format)) beginning += SourceOf(token);
    }
  }
  return beginning;
}

bool DefinesPlace(std::string_view source) {
  return HoldsWord(source, [](Names word) { return word == kSection || word == kRow; });
}

std::string RowDefinition(std::string_view source) {
  std::string row;
  ForEachWord(source, [&](const Token& word) {
    if (word.text == kRow) row.clear();
    const bool ofRow = !row.empty() && !Begins(word.text);
    if (word.text == kRow || ofRow) row += SourceOf(word);
  });
  return row;
}

WordScope FamilyScope(std::string_view word) {
  if (BeginsLike(kPlaceBeginnings, word)) return WordScope::Place;
  if (BeginsLike(kBorders, word)) return WordScope::Border;
  return word.starts_with(kShadings) ? WordScope::Paragraph : WordScope::None;
}

bool NamesTableEntry(std::string_view word) { return Holds(kTableWords, word); }

}  // namespace lumenote

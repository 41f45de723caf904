#include "rtf/read/WordKeeper.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "rtf/read/WordFamilies.h"

namespace lumenote {
namespace {

constexpr std::size_t kMaxWords = 64;         // of one format
constexpr std::size_t kLongestName = 32;      // letters, more than any real word
constexpr std::size_t kLongestGroup = 4096;   // bytes
constexpr std::size_t kLeastWords = 1 << 13;  // for all formats together

using Kind = KeptWord::Kind;
using Words = std::vector<KeptWord>;
using Iterator = Words::iterator;

bool IsFont(KeptWord word) { return word.kind == Kind::Font; }
bool IsSize(KeptWord word) { return word.kind == Kind::Size; }

bool IsOfParts(KeptWord word) { return IsMark(word) || IsFont(word) || IsSize(word); }

bool HasMark(const Words& words) { return std::ranges::any_of(words, IsMark); }
bool HasScript(const Words& words) { return std::ranges::any_of(words, IsScript); }

struct Part {
  Iterator begin, end;
};

/// The part that starts with a marker; empty, at the end, if there is none.
Part PartOf(NameId mark, Words& words) {
  const Iterator begin =
      std::ranges::find_if(words, [=](KeptWord word) { return word.name == mark; });
  if (begin == words.end()) return {begin, begin};
  return {begin, std::find_if(begin + 1, words.end(), IsMark)};
}

/// The last part; there must be one.
Iterator LastPart(Words& words) {
  return std::find_if(words.rbegin(), words.rend(), IsMark).base() - 1;
}

KeptWord Numbered(NameId name, const Token& word) {
  if (!word.hasNumber) return {.name = name};
  return {.name = name, .kind = Kind::Numbered, .number = word.number};
}

}  // namespace

WordKeeper::WordKeeper(FormatTables& formats, std::size_t sourceLength)
    : formats_(formats), wordsLeft_(sourceLength / sizeof(KeptWord) + kLeastWords) {}

WordsId WordKeeper::With(const Token& word, WordsId words) {
  const NameId name = Name(word);
  if (name == 0) return words;
  Words all = formats_.words.List(words);
  if (!MayRepeat(word.text)) std::erase_if(all, [=](KeptWord w) { return w.name == name; });
  all.insert(std::ranges::find_if(all, IsOfParts), Numbered(name, word));
  return Number(std::move(all), words);
}

WordsId WordKeeper::WithFirst(const Token& word, WordsId words) {
  const NameId name = Name(word);
  if (name == 0) return words;
  Words all = formats_.words.List(Without(word, words));
  all.insert(all.begin(), Numbered(name, word));
  return Number(std::move(all), words);
}

WordsId WordKeeper::Without(const Token& word, WordsId words) {
  if (words == 0) return words;
  const auto same = [name = Name(word)](KeptWord w) { return name != 0 && w.name == name; };
  if (!formats_.words.Any(words, same)) return words;
  Words all = formats_.words.List(words);
  std::erase_if(all, same);
  return Number(std::move(all), words);
}

WordsId WordKeeper::WithNumbering(const std::string& group, WordsId words) {
  const NameId name = group.size() > kLongestGroup ? 0 : formats_.names.Intern(group);
  if (name == 0) return words;
  Words all = formats_.words.List(words);
  all.push_back({.name = name, .kind = Kind::Numbering});
  return Number(std::move(all), words);
}

WordsId WordKeeper::WithMark(NameId mark, Kind kind, std::uint8_t stated, WordsId words) {
  if (mark == 0) return words;
  Words all = formats_.words.List(words);
  if ((stated & kStatesFont) != 0 && !HasMark(all)) all.push_back({.kind = Kind::Font});
  const bool sizeStays = (stated & kStatesSize) != 0 && IsDirection(kind) && !HasScript(all) &&
                         std::ranges::none_of(all, IsSize);
  if (sizeStays) all.push_back({.kind = Kind::Size});
  const Part part = PartOf(mark, all);
  Words moved(part.begin, part.end);
  if (moved.empty()) moved.push_back({.name = mark, .kind = kind});
  std::erase_if(moved, IsSize);
  const Iterator next = all.erase(part.begin, part.end);
  // Before a script the size would not be said there again.
  if (next != all.begin() && next != all.end() && IsSize(*std::prev(next)) && IsScript(*next))
    all.erase(std::prev(next));
  all.insert(all.end(), moved.begin(), moved.end());
  return Number(std::move(all), words);
}

WordsId WordKeeper::WithAssociated(NameId mark, const Token& word, WordsId words) {
  const NameId name = Name(word);
  Words all = formats_.words.List(words);
  Part part = PartOf(mark, all);
  if (mark == 0 || name == 0 || part.begin == part.end) return words;
  const Iterator same =
      std::find_if(part.begin, part.end, [=](KeptWord w) { return w.name == name; });
  if (same != part.end) part.end = all.erase(same) + (part.end - same - 1);
  all.insert(part.end, Numbered(name, word));
  return Number(std::move(all), words);
}

WordsId WordKeeper::WithFont(int before, WordsId words) {
  if (words == 0) return words;
  Words all = formats_.words.List(words);
  if (!HasMark(all)) return words;
  const KeptWord associated = Associated("af", before);
  const auto replaced = [&](KeptWord w) { return IsFont(w) || w.name == associated.name; };
  if (HasScript(all)) {
    std::erase_if(all, IsFont);
  } else {
    all.erase(std::remove_if(LastPart(all), all.end(), replaced), all.end());
    LeavePlace(Kind::Font, associated, all);
  }
  all.push_back({.kind = Kind::Font});
  return Number(std::move(all), words);
}

WordsId WordKeeper::WithSize(int before, WordsId words) {
  if (!formats_.words.Any(words, IsSize) || formats_.words.Any(words, IsScript)) return words;
  Words all = formats_.words.List(words);
  LeavePlace(Kind::Size, Associated("afs", before), all);
  return Number(std::move(all), words);
}

KeptWord WordKeeper::Associated(std::string_view name, int number) {
  return {
      .name = formats_.names.Intern(std::string(name)), .kind = Kind::Numbered, .number = number};
}

/// Puts `associated` where the run's own font or size was said before the last part. What is said
/// before all parts is said of text from left to right.
void WordKeeper::LeavePlace(Kind place, KeptWord associated, Words& words) {
  const auto says = [=](KeptWord w) { return w.name == associated.name; };
  const auto isPlace = [=](KeptWord w) { return w.kind == place; };
  if (std::none_of(words.begin(), LastPart(words), isPlace)) return;
  MarkStart(words);
  const Iterator at = std::ranges::find_if(words, isPlace);
  const auto begin = std::find_if(std::make_reverse_iterator(at), words.rend(), IsMark).base();
  const bool known = std::any_of(at, std::find_if(at, words.end(), IsMark), says);
  if (begin == words.begin() || known) return void(words.erase(at));
  *at = associated;
  words.erase(std::remove_if(begin, at, says), at);
}

/// Begins the parts with a marker, if it has no part yet.
void WordKeeper::MarkStart(Words& words) {
  if (std::ranges::any_of(words, [](KeptWord w) { return w.kind == Kind::LeftToRight; })) return;
  const Iterator first = std::ranges::find_if(words, IsOfParts);
  if (!IsMark(*first)) words.insert(first, {formats_.names.Intern("ltrch"), Kind::LeftToRight});
}

NameId WordKeeper::Name(const Token& word) {
  return word.text.size() > kLongestName ? 0 : formats_.names.Intern(std::string(word.text));
}

WordsId WordKeeper::Number(std::vector<KeptWord> words, WordsId otherwise) {
  if (words.size() > std::min(kMaxWords, wordsLeft_)) return otherwise;
  const std::uint32_t known = formats_.words.Size();
  const WordsId number = formats_.words.Chain(std::move(words));
  wordsLeft_ -= formats_.words.Size() - known;
  return number;
}

}  // namespace lumenote

#include "rtf/read/WordKeeper.h"

#include <algorithm>
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
  const auto ofParts = [](KeptWord w) { return IsMark(w) || IsFont(w); };
  all.insert(std::ranges::find_if(all, ofParts), Numbered(name, word));
  return Number(std::move(all), words);
}

WordsId WordKeeper::WithNumbering(const std::string& group, WordsId words) {
  const NameId name = group.size() > kLongestGroup ? 0 : formats_.names.Intern(group);
  if (name == 0) return words;
  Words all = formats_.words.List(words);
  all.push_back({.name = name, .kind = Kind::Numbering});
  return Number(std::move(all), words);
}

WordsId WordKeeper::WithMark(NameId mark, KeptWord::Kind kind, bool hasFont, WordsId words) {
  if (mark == 0) return words;
  Words all = formats_.words.List(words);
  if (hasFont && std::ranges::none_of(all, IsMark)) all.push_back({.kind = Kind::Font});
  const Part part = PartOf(mark, all);
  Words moved(part.begin, part.end);
  if (moved.empty()) moved.push_back({.name = mark, .kind = kind});
  all.erase(part.begin, part.end);
  const bool last = IsScript(moved.front());
  const Iterator to = last ? all.end() : std::ranges::find_if(all, IsScript);
  all.insert(to, moved.begin(), moved.end());
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

WordsId WordKeeper::WithFont(WordsId words) {
  if (words == 0) return words;
  Words all = formats_.words.List(words);
  if (std::ranges::none_of(all, IsMark)) return words;
  std::erase_if(all, IsFont);
  all.push_back({.kind = Kind::Font});
  return Number(std::move(all), words);
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

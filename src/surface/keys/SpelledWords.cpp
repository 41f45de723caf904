#include "surface/keys/SpelledWords.h"

#include <algorithm>
#include <string_view>

#include "base/Characters.h"

namespace lumenote {

namespace {

constexpr Position kLongest = 64;  // characters; anything longer is no word

bool IsJoint(char16_t c) {
  constexpr char16_t kHyphen = u'\u2010', kNoBreakHyphen = u'\u2011';
  return c == u'\'' || c == u'\u2019' || c == u'-' || c == kHyphen || c == kNoBreakHyphen;
}

/// Whether the character at `i` goes on with a word.
bool IsInWord(std::u16string_view text, std::size_t i) {
  if (IsWordCharacter(text[i])) return true;
  return IsJoint(text[i]) && i > 0 && i + 1 < text.size() && IsWordCharacter(text[i - 1]) &&
         IsWordCharacter(text[i + 1]);
}

bool IsLatin(char16_t c) { return c < u'\u0250' || (c >= u'\u1E00' && c < u'\u1F00'); }

/// Words of other scripts are in no French dictionary.
bool IsSpelled(std::u16string_view word) {
  const auto isLetter = [](char16_t c) { return (IsLatin(c) && IsLetter(c)) || IsJoint(c); };
  return word.size() > 1 && word.size() <= kLongest && std::ranges::all_of(word, isLetter);
}

/// Whether the word that ends at `end` is an abbreviation: its full stop ends no sentence.
bool IsAbbreviated(std::u16string_view text, std::size_t end) {
  if (!text.substr(end).starts_with(u'.')) return false;
  const std::size_t next = text.find_first_not_of(u" \u00A0", end + 1);
  return next < text.size() && text[next] != u'\r' && ToLower(text[next]) == text[next];
}

bool MayBeFrench(const CharFormat& format) {
  constexpr int kPrimary = 0x3FF, kFrench = 0x0C;  // of a language identifier
  const bool stated = format.language != 0;
  if (stated && (format.language & kPrimary) != kFrench) return false;
  return (format.effects & (kItalic | kHidden | kDeleted)) == 0;
}

}  // namespace

std::vector<Selection> SpelledWords(const Document& document, Position from, Position to) {
  // Words reach beyond the range, but not into other paragraphs.
  const Position first = document.ParagraphStart(document.ParagraphOf(from));
  const Position last = document.ParagraphEnd(document.ParagraphOf(to));
  constexpr Position kBeyond = kLongest + 1;  // so that longer words are seen to be longer
  const Position start = std::max(from - kBeyond, first);
  const std::u16string text = document.Text(start, std::min(to + kBeyond, last));
  std::vector<Selection> words;
  for (std::size_t begin = 0, end = 0; begin < text.size(); begin = end + 1) {
    for (end = begin; end < text.size() && IsInWord(text, end);) ++end;
    const Selection range{start + static_cast<Position>(begin), start + static_cast<Position>(end)};
    if (range.end < from || range.start > to) continue;
    const std::u16string_view word = std::u16string_view(text).substr(begin, end - begin);
    const CharId format = document.CharFormatAt(range.start);
    if (IsSpelled(word) && !IsAbbreviated(text, end) &&
        MayBeFrench(document.Formats().characters[format]))
      words.push_back(range);
  }
  return words;
}

Selection SpelledWordAt(const Document& document, Position position) {
  const std::vector<Selection> words = SpelledWords(document, position, position);
  return words.empty() ? Selection{position, position} : words.front();
}

}  // namespace lumenote

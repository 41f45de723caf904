// Splitting and putting together command lines.
#include "platform/ProgramCommand.h"

#include <algorithm>
#include <cstddef>

namespace lumenote {
namespace {

constexpr std::u16string_view kBlanks = u" \t";

void SkipBlanks(std::u16string_view& line) {
  line.remove_prefix(std::min(line.find_first_not_of(kBlanks), line.size()));
}

/// The program's own word: no backslash has a meaning in it.
std::u16string TakeProgram(std::u16string_view& line) {
  const bool quoted = line.starts_with(u'"');
  if (quoted) line.remove_prefix(1);
  const std::size_t end = quoted ? line.find(u'"') : line.find_first_of(kBlanks);
  const std::u16string word(line.substr(0, end));
  line.remove_prefix(std::min(end, line.size()));
  if (quoted && !line.empty()) line.remove_prefix(1);
  return word;
}

/// Takes the backslashes at the start of `line`, and a quote that they make literal, into `word`.
void TakeBackslashes(std::u16string_view& line, std::u16string& word) {
  const std::size_t count = std::min(line.find_first_not_of(u'\\'), line.size());
  line.remove_prefix(count);
  const bool beforeQuote = line.starts_with(u'"');
  word.append(beforeQuote ? count / 2 : count, u'\\');
  if (!beforeQuote || count % 2 == 0) return;
  word += u'"';
  line.remove_prefix(1);
}

std::u16string TakeWord(std::u16string_view& line) {
  std::u16string word;
  bool quoted = false;
  while (!line.empty() && (quoted || kBlanks.find(line[0]) == kBlanks.npos)) {
    if (line[0] == u'\\') {
      TakeBackslashes(line, word);
      continue;
    }
    if (line[0] == u'"')
      quoted = !quoted;
    else
      word += line[0];
    line.remove_prefix(1);
  }
  return word;
}

}  // namespace

std::vector<std::u16string> SplitCommandLine(std::u16string_view line) {
  std::vector<std::u16string> words;
  SkipBlanks(line);
  if (line.empty()) return words;
  words.push_back(TakeProgram(line));
  for (SkipBlanks(line); !line.empty(); SkipBlanks(line)) words.push_back(TakeWord(line));
  return words;
}

std::u16string Quoted(std::u16string_view text) { return u'"' + std::u16string(text) + u'"'; }

}  // namespace lumenote

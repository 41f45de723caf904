// Splitting and quoting command lines.
#include "platform/ProgramCommand.h"

#include <algorithm>
#include <cstddef>

#include "base/Strings.h"
#include "platform/Paths.h"

namespace lumenote {
namespace {

constexpr std::u16string_view kBlanks = u" \t";

void SkipBlanks(std::u16string_view& line) {
  line.remove_prefix(std::min(line.find_first_not_of(kBlanks), line.size()));
}

/// Consumes the program's word up to its closing quote; a doubled quote is literal.
std::u16string TakeQuotedProgram(std::u16string_view& line) {
  std::u16string word;
  while (!line.empty()) {
    const std::size_t end = std::min(line.find(u'"'), line.size());
    const bool literal = line.substr(end).starts_with(u"\"\"");
    word += line.substr(0, end + (literal ? 1 : 0));
    line.remove_prefix(std::min(end + (literal ? 2 : 1), line.size()));
    if (!literal) break;
  }
  return word;
}

/// In the program's own word a backslash is always literal.
std::u16string TakeProgram(std::u16string_view& line) {
  if (line.starts_with(u'"')) {
    line.remove_prefix(1);
    return TakeQuotedProgram(line);
  }
  std::u16string word(line.substr(0, line.find_first_of(kBlanks)));
  line.remove_prefix(word.size());
  return word;
}

/// Moves the backslashes at the start of `line`, and a quote that they escape, to `word`.
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

std::u16string QuotedProgram(std::u16string_view path) {
  return u'"' + ReplaceEvery(FoldBackslashes(path), u"\"", u"\"\"") + u'"';
}

std::u16string Quoted(std::u16string_view path) {
  const std::u16string text = FoldBackslashes(path);
  if (text.find(u'"') == text.npos) return u'"' + text + u'"';
  std::u16string word = u"\"";
  std::size_t backslashes = 0;
  for (const char16_t unit : text) {
    if (unit == u'"') word.append(backslashes + 1, u'\\');
    backslashes = unit == u'\\' ? backslashes + 1 : 0;
    word += unit;
  }
  return word.append(backslashes, u'\\') + u'"';
}

}  // namespace lumenote

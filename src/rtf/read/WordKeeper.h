// Collects the kept words of the formats being read.
#pragma once
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "document/FormatTables.h"
#include "rtf/source/Tokenizer.h"

namespace lumenote {

/// Each function adds a word to a chain and returns the new chain's number, or `words` unchanged if
/// a limit is reached. A format may have only few words, and all of them together hardly more than
/// the source, which bounds hostile sources.
class WordKeeper {
 public:
  WordKeeper(FormatTables& formats, std::size_t sourceLength);

  /// Replaces an earlier use of the same word, unless it may be repeated per border.
  WordsId With(const Token& word, WordsId words);
  /// The same, before all others.
  WordsId WithFirst(const Token& word, WordsId words);
  /// Removes that word.
  WordsId Without(const Token& word, WordsId words);
  /// Adds a group that numbers the paragraph.
  WordsId WithNumbering(const std::string& group, WordsId words);

  // The look of other directions and scripts is given in parts, each a marker and the words that
  // apply to it, in the order in which they were said last: readers take what follows for the last
  // one's.

  /// Makes that marker's part the last one. `stated` tells whether the run's own font and
  /// size have been said (`CharStated`).
  WordsId WithMark(NameId mark, KeptWord::Kind kind, std::uint8_t stated, WordsId words);
  /// Adds a word to that marker's part.
  WordsId WithAssociated(NameId mark, const Token& word, WordsId words);
  // With directions only, readers take the run's own font and size for those of the direction whose
  // part they are said in, and so they stay those of that direction when another part says others;
  // `before` is the number said there.

  /// The run's own font is said after all parts.
  WordsId WithFont(int before, WordsId words);
  /// So is its size.
  WordsId WithSize(int before, WordsId words);
  /// 0 for a missing word, or if the table is full.
  NameId Name(const Token& word);

 private:
  KeptWord Associated(std::string_view name, int number);
  void MarkStart(std::vector<KeptWord>& words);
  void LeavePlace(KeptWord::Kind place, KeptWord associated, std::vector<KeptWord>& words);
  WordsId Number(std::vector<KeptWord> words, WordsId otherwise);

  FormatTables& formats_;
  std::size_t wordsLeft_;  // remaining budget of words
};

}  // namespace lumenote

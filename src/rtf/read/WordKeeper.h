// The kept words of the run and paragraph formats being read.
#pragma once
#include <cstddef>
#include <string>
#include <vector>

#include "document/FormatTables.h"
#include "rtf/source/Tokenizer.h"

namespace lumenote {

/// Adds words to those of a format: each function returns the number of `words` with one more, or
/// `words` where there is no room. Formats of hostile sources have few words each, and all of them
/// together hardly more than the source.
class WordKeeper {
 public:
  WordKeeper(FormatTables& formats, std::size_t sourceLength);

  /// Takes the place of what the same word said before, unless it may be said for each border.
  WordsId With(const Token& word, WordsId words);
  /// A group that numbers the paragraph.
  WordsId WithNumbering(const std::string& group, WordsId words);

  // How other scripts look is told in parts, each a mark and the words that hold for it: for the
  // directions, and behind these for the scripts. The last one of each kind is the run's own.

  /// Makes the part of that mark, which now becomes the current one, the last of its kind.
  WordsId WithMark(const Token& mark, KeptWord::Kind kind, WordsId words);
  /// A word of the current part.
  WordsId WithAssociated(const Token& word, WordsId words);
  void LeavePart() { mark_ = 0; }

 private:
  NameId Name(const Token& word);
  WordsId Number(std::vector<KeptWord> words, WordsId otherwise);

  FormatTables& formats_;
  NameId mark_ = 0;        // of the current part, 0 none
  std::size_t wordsLeft_;  // that may still be kept
};

}  // namespace lumenote

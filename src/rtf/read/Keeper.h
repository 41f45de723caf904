// What the editor shows nothing of, on its way from the source into the note.
#pragma once
#include <cstddef>
#include <string>
#include <string_view>

#include "document/formats/Formats.h"
#include "rtf/source/Tokenizer.h"

namespace lumenote {

/// Gathers the words of formats and the source that goes with the next character. What hostile
/// sources can make of words is bounded: those of one format are short, those of all together
/// hardly longer than the source.
class Keeper {
 public:
  Keeper(FormatTables& formats, std::size_t sourceLength);

  // The words of a run or paragraph: each returns the number of `words` with some more, or of
  // `words` themselves where there is no room.

  WordsId With(const Token& word, WordsId words);
  WordsId WithGroup(const std::string& group, WordsId words);
  /// Words on how other scripts look belong to the marker before them.
  WordsId WithScript(const Token& word, WordsId words);
  void EndScripts() { script_ = {}; }

  // What goes with the next character.

  bool Pending() const { return !pending_.empty(); }
  /// A place in all that is ever kept; it stays good when what came before it is taken.
  using Place = std::size_t;
  Place Here() const { return taken_ + pending_.size(); }
  void Keep(std::string_view source) { pending_ += source; }
  /// Takes away what has been kept behind `place`.
  std::string TakeSince(Place place);
  std::string Take();
  /// Numbers what is kept with a character.
  KeptId KeptNumber(Kept kept);

  /// Whether anything kept names entries of the source's tables.
  bool NeedsTables() const { return needsTables_; }
  void NeedTablesIf(bool needed) { needsTables_ |= needed; }

 private:
  WordsId WordsNumber(std::string source, WordsId otherwise);

  FormatTables& formats_;
  std::string pending_;
  Place taken_ = 0;          // where `pending_` begins
  std::string_view script_;  // the last marker
  std::size_t wordsLeft_;    // bytes of words that may still be kept
  bool needsTables_ = false;
};

}  // namespace lumenote

// The arguments of a script's line, read one after the other.
#pragma once
#include <cstdint>
#include <string>
#include <string_view>

#include "base/Value.h"

namespace lumenote {

/// Reads what follows the verb: bare words and JSON values separated by blanks, up to the end of
/// the line or a comment. Anything else than what is asked for raises `ScriptError`.
class Arguments {
 public:
  /// `text` is UTF-8 and outlives the reader.
  explicit Arguments(std::string_view text) : text_(text) {}

  bool AtEnd();
  /// Raises unless every argument has been read.
  void End();

  /// A JSON value, or a bare word as a string.
  Value Any();
  /// A JSON value and nothing else.
  Value Json();
  /// A string, a bare word, or a number as it is written.
  std::u16string Text();
  /// The same as UTF-8: a name.
  std::string Name();
  /// A whole number in that range.
  std::int32_t Whole(std::int32_t least, std::int32_t most);
  /// A number in that range.
  double Number(double least, double most);
  bool Flag();
  /// Whatever stands behind the blanks, comments too.
  std::string_view Rest();

 private:
  struct Argument {
    Value value;
    std::string_view source;
  };
  Argument Next();
  Argument NextWord();

  std::string_view text_;
};

/// Takes the first word off `line`, for the verb; empty on a line without one.
std::string_view TakeVerb(std::string_view& line);

}  // namespace lumenote

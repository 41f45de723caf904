// Reads the arguments of a script line in order.
#pragma once
#include <cstdint>
#include <string>
#include <string_view>

#include "base/Value.h"

namespace lumenote {

/// Parses what follows the verb: bare words and JSON values separated by spaces, up to the end of
/// the line or a comment. Anything but the requested kind raises `ScriptError`.
class Arguments {
 public:
  /// `text` is UTF-8 and must outlive the reader.
  explicit Arguments(std::string_view text) : text_(text) {}

  bool AtEnd();
  /// Raises unless every argument has been read.
  void End();

  /// A JSON value, or a bare word as a string.
  Value Any();
  /// A JSON value only.
  Value Json();
  /// A string, a bare word, or a number as written.
  std::u16string Text();
  /// The same as UTF-8; for names.
  std::string Name();
  /// An integer in the range.
  std::int32_t Whole(std::int32_t least, std::int32_t most);
  /// A number in the range.
  double Number(double least, double most);
  bool Flag();
  /// The raw rest of the line after spaces, comments included.
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

/// Removes the first word, the verb, from `line`; empty if there is none.
std::string_view TakeVerb(std::string_view& line);

}  // namespace lumenote

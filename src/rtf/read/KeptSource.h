// Sanitises kept source to pure ASCII.
#pragma once
#include <string>
#include <string_view>

#include "rtf/source/Tokenizer.h"

namespace lumenote {

/// A piece of source in which binary data is hexadecimal if it belongs to a picture or an object or
/// has other bytes than printable ASCII; such bytes elsewhere are \'xx, meaningless characters are
/// line ends, and unmatched closing braces are dropped.
struct KeptSource {
  std::string text;        // without a space after a final word
  std::size_t open = 0;    // unclosed groups
  bool needsHead = false;  // it refers to fonts or colours, or has bytes of the document's page

  /// The piece is a group whose text is not body text; a whole field, in which digits would be
  /// text; or of a field's own group only the words that describe the field.
  enum class Piece { Group, Field, FieldOpening };
  /// `fallback` is the \uc value in force where the source comes from.
  KeptSource(std::string_view source, int fallback, Piece piece = Piece::Group);
  /// Appends the missing closing braces.
  std::string Closed() && { return std::move(text.append(open, '}')); }

 private:
  void Reserve(std::string_view source);
  void Append(const Token& token, std::string_view source, bool digits);
  /// Inserts a \uc of `fallback` at `at`, and `restore`s the writer's own at the end.
  void StateFallback(std::size_t at, int fallback, bool restore);
};

}  // namespace lumenote

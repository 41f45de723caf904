// Source that is kept as it came, made fit to stand in pure ASCII.
#pragma once
#include <string>
#include <string_view>

#include "rtf/source/Tokenizer.h"

namespace lumenote {

/// A piece of source: binary data as hexadecimal digits, which mean the same where they are not
/// shown as text, bytes that are no printable ASCII as \'xx, what means nothing as a line end, and
/// without closing braces that open nowhere in it.
struct KeptSource {
  std::string text;        // no blank stands behind a word at its end
  std::size_t open = 0;    // groups that it leaves open
  bool needsHead = false;  // it names fonts or colours, or holds bytes of the document's page

  /// A group whose text is not that of the body, a whole field, or of a field's own group only the
  /// words that tell of it.
  enum class Piece { Hidden, Field, FieldOpening };
  /// `fallback` is the number of characters behind a \u in force where the source stands (\uc).
  KeptSource(std::string_view source, int fallback, Piece piece = Piece::Hidden);
  /// The same with the missing closing braces.
  std::string Closed() && { return std::move(text.append(open, '}')); }

 private:
  void Append(const Token& token, std::string_view source);
};

/// A word as it is written.
std::string SourceOf(const Token& word);

}  // namespace lumenote

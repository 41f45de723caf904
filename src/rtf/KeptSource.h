// Source that is kept as it came, made fit to stand in pure ASCII.
#pragma once
#include <string>
#include <string_view>

#include "rtf/Tokenizer.h"

namespace lumenote {

/// A piece of source: binary data as hexadecimal digits, which mean the same, bytes from 0x80 on
/// as \'xx, what means nothing as a line end, and without closing braces that open nowhere in it.
struct KeptSource {
  std::string text;        // no blank stands behind a word at its end
  std::size_t open = 0;    // groups that it leaves open
  bool needsHead = false;  // it names fonts or colours, or holds bytes of the document's page

  /// What a piece keeps outside its groups: all, all but data, or only what tells of a field.
  enum class Own { All, NoData, OfField };
  /// `fallback` is the number of characters behind a \u in force where the source stands (\uc).
  KeptSource(std::string_view source, int fallback, Own own = Own::All);
  /// The same with the missing closing braces.
  std::string Closed() const { return text + std::string(open, '}'); }

 private:
  void Append(const Token& token, std::string_view source);
};

/// A word as it is written.
std::string SourceOf(const Token& word);

}  // namespace lumenote

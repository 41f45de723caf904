// The colour table of an RTF source.
#pragma once
#include <string>
#include <vector>

#include "document/formats/Formats.h"
#include "rtf/source/Tokenizer.h"

namespace lumenote {

class ColourTable {
 public:
  /// Reads the current \colortbl group up to its closing brace.
  void Read(Tokenizer& tokens);
  /// Automatic for an entry without a colour and for a number outside the table.
  Colour operator[](int number) const;
  const std::vector<Colour>& All() const { return colours_; }
  /// By number: the words that say which colour of a theme it is.
  const std::vector<std::string>& Tints() const { return tints_; }
  /// Those words of one entry.
  const std::string& Tint(int number) const;
  bool HasTints() const;

 private:
  std::vector<Colour> colours_;
  std::vector<std::string> tints_;
};

}  // namespace lumenote

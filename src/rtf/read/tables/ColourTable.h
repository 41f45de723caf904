// The colour table of an RTF source.
#pragma once
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

 private:
  std::vector<Colour> colours_;
};

}  // namespace lumenote

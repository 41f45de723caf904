// The colours of an RTF source by their numbers.
#pragma once
#include <vector>

#include "document/formats/Formats.h"
#include "rtf/source/Tokenizer.h"

namespace lumenote {

class ColourTable {
 public:
  /// Reads the \colortbl group that the tokenizer stands in, up to its closing brace.
  void Read(Tokenizer& tokens);
  /// The automatic colour for an entry without one and for a number out of the table.
  Colour operator[](int number) const;
  const std::vector<Colour>& All() const { return colours_; }

 private:
  std::vector<Colour> colours_;
};

}  // namespace lumenote

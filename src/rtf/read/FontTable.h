// The fonts of an RTF source by their numbers.
#pragma once
#include <unordered_map>

#include "document/formats/Formats.h"
#include "rtf/source/Tokenizer.h"

namespace lumenote {

struct SourceFont {
  FontId font = 0;
  int page = 0;  // of its bytes; 0: the document's
};

class FontTable {
 public:
  /// Reads the \fonttbl group that the tokenizer stands in, up to its closing brace. Fonts may
  /// stand in groups of their own or not; a missing ";" is supplied.
  void Read(Tokenizer& tokens, InternTable<FontFace>& faces, int documentPage);
  /// Null when the source defines no such font.
  const SourceFont* Find(int number) const;
  const std::unordered_map<int, SourceFont>& All() const { return fonts_; }

 private:
  std::unordered_map<int, SourceFont> fonts_;
};

}  // namespace lumenote

// The font table of an RTF source.
#pragma once
#include <unordered_map>

#include "document/formats/Formats.h"
#include "rtf/source/Tokenizer.h"

namespace lumenote {

struct SourceFont {
  FontId font = 0;
  int page = 0;  // code page of its bytes; 0: the document's
};

class FontTable {
 public:
  /// Reads the current \fonttbl group up to its closing brace. Fonts may have groups of their own
  /// or not; a missing ";" is tolerated.
  void Read(Tokenizer& tokens, InternTable<FontFace>& faces, int documentPage);
  /// Null if the source does not define the font.
  const SourceFont* Find(int number) const;
  const std::unordered_map<int, SourceFont>& All() const { return fonts_; }
  /// Whether some name is not ASCII: readers differ in which form of it they understand.
  bool HasForeignNames() const { return foreign_; }

 private:
  std::unordered_map<int, SourceFont> fonts_;
  bool foreign_ = false;
};

}  // namespace lumenote

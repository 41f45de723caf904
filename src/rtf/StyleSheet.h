// The paragraph and character styles of an RTF source by their numbers.
#pragma once
#include <memory>
#include <string_view>
#include <unordered_map>

#include "rtf/GroupState.h"
#include "rtf/Tokenizer.h"

namespace lumenote {

/// What a style and its bases give.
struct StyleFormats {
  CharFormat character;
  ParagraphState paragraph;
  CodePage page;
};

struct Style {
  std::string_view source;                  // of its group
  int base = -1;                            // \sbasedon
  std::unique_ptr<StyleFormats> formats{};  // null until the style is used
};

class StyleSheet {
 public:
  enum class Kind { Paragraph, Character };

  /// Reads the \stylesheet group that the tokenizer stands in, up to its closing brace; in a table
  /// that lacks it, up to a word of the body.
  void Read(Tokenizer& tokens);
  /// Null when the source defines no such style. The style stays where it is.
  Style* Find(Kind kind, int number);

 private:
  void Add(std::string_view source);

  std::unordered_map<int, Style> paragraphs_, characters_;
};

/// Gives `to` what `style` has and the format `plain` has not.
void ApplyStyle(const CharFormat& style, const CharFormat& plain, CharFormat& to);
/// The same beside the default paragraph.
void ApplyStyle(const ParagraphState& style, ParagraphState& to);

}  // namespace lumenote

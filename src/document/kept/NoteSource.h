// The source of footnotes, which other formats write as text.
#pragma once
#include <string>
#include <string_view>

namespace lumenote {

struct FootnoteText {
  bool numbered = false;  // by the program that shows it; otherwise its mark is in the text
  std::u16string text{};  // CR LF between paragraphs
};
FootnoteText TextOfFootnote(std::string_view group);

}  // namespace lumenote

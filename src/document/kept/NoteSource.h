// The source of footnotes, which other formats write as text.
#pragma once
#include <string>
#include <string_view>

#include "document/kept/SourcePages.h"

namespace lumenote {

struct FootnoteText {
  bool numbered = false;  // by the program that shows it; otherwise its mark is in the text
  std::u16string text{};  // CR LF between paragraphs
};
/// `page` is that of bytes where the group stands.
FootnoteText TextOfFootnote(std::string_view group, const SourcePages& pages, int page);

}  // namespace lumenote

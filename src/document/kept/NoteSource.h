// The source of footnotes, which other formats write as text.
#pragma once
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "document/kept/SourcePages.h"

namespace lumenote {

struct FootnoteText {
  bool numbered = false;  // by the program that shows it; otherwise its mark is in the text
  std::u16string text{};  // CR LF between paragraphs

  /// The effects of text from that unit on, up to the next run: `kBold`, `kItalic`.
  struct Run {
    std::size_t start = 0;
    std::uint16_t effects = 0;
  };
  std::vector<Run> runs{};  // the first starts at 0; none in a note without text
};
/// `page` is that of bytes where the group stands.
FootnoteText TextOfFootnote(std::string_view group, const SourcePages& pages, int page);

}  // namespace lumenote

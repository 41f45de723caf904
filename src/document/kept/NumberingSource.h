// The source of the numbering of paragraphs, which other formats know, too.
#pragma once
#include <string>

namespace lumenote {

/// The group that numbers a paragraph; `style` is one of "1aAiI", as in HTML.
std::string NumberingGroup(char style, int start);

}  // namespace lumenote

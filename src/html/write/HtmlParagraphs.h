// The paragraphs of a range, and the table rows that they form.
#pragma once
#include <cstddef>
#include <vector>

#include "document/Document.h"

namespace lumenote {

/// Text that ends at a break, at the end of a cell, or with the range.
struct HtmlParagraph {
  Position start = 0;
  Position end = 0;
  CharId ender = 0;  // the format of what ends it
  ParaId format = 0;
  bool endsCell = false;
  bool endsRow = false;
  bool inRow = false;  // of a row whose end is in the range; nested ones are text with tabs
};

/// In order.
std::vector<HtmlParagraph> FindHtmlParagraphs(const Document& document, Selection range);

}  // namespace lumenote

// The rows and cells that paragraphs form.
#pragma once
#include <cstdint>
#include <span>
#include <vector>

#include "document/tables/CellParagraphs.h"

namespace lumenote {

struct HtmlCell {
  std::span<const CellParagraph> content;
  std::int32_t width = 1;  // twips
  int columns = 1;
  int rows = 1;
  bool covered = false;  // by a cell of several rows above; not written
};

struct HtmlTable {
  std::vector<std::vector<HtmlCell>> rows;
  bool borders = false;
};

/// The table that the rows of that level make up, which fill `part`.
HtmlTable FindHtmlTable(std::span<const CellParagraph> part, int level, const FormatTables& tables);

}  // namespace lumenote

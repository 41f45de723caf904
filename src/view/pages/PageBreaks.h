// Where the pages of a printed note begin.
#pragma once
#include <cstddef>
#include <vector>

#include "base/Position.h"

namespace lumenote {

/// What is never cut: a line, or a table row, of which a tall one has several bands. Lengths are
/// pixels.
struct PageBand {
  Position start = 0;  // of the line's or row's text
  double offset = 0;   // from the row's top
  double space = 0;    // above, but not at the top of a page
  double height = 0;
  bool opensPage = false;
  bool stays = false;      // on the page of the band above, if a page can hold both
  double headHeight = 0;   // of the rows that head its table, above it at the top of a page
  Position headStart = 0;  // where they begin
};

/// The first band of each page that holds `height`; at least one page, and no page without a band
/// if there are any. What is higher than a page has one to itself.
std::vector<std::size_t> PageStarts(const std::vector<PageBand>& bands, double height);

}  // namespace lumenote

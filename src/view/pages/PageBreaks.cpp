#include "view/pages/PageBreaks.h"

namespace lumenote {

namespace {

/// The band that begins the next page if `behind` does not fit on the page that `first` begins.
std::size_t BreakBefore(const std::vector<PageBand>& bands, std::size_t first, std::size_t behind) {
  std::size_t start = behind;
  while (start > first && bands[start].stays) --start;
  return start > first ? start : behind;
}

}  // namespace

std::vector<std::size_t> PageStarts(const std::vector<PageBand>& bands, double height) {
  std::vector<std::size_t> starts{0};
  double used = 0;
  for (std::size_t i = 0; i < bands.size(); ++i) {
    const std::size_t first = starts.back();
    used = i == first ? bands[i].headHeight + bands[i].height
                      : used + bands[i].space + bands[i].height;
    if (i == first || (!bands[i].opensPage && used <= height)) continue;
    starts.push_back(bands[i].opensPage ? i : BreakBefore(bands, first, i));
    i = starts.back() - 1;
  }
  return starts;
}

}  // namespace lumenote

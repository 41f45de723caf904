// How often a link may state its address again.
#pragma once
#include <cstddef>

namespace lumenote {

/// A link over several paragraphs states its address in each; a limit for all of a page keeps it in
/// proportion to the note.
class LinkRepeats {
 public:
  /// Whether `length` more characters are within the limit, against which they then count.
  bool Allow(std::size_t length) {
    if (length > left_) return false;
    left_ -= length;
    return true;
  }

 private:
  std::size_t left_ = 1'000'000;
};

}  // namespace lumenote

// The code pages of the bytes in kept source.
#pragma once
#include <optional>

#include "document/kept/Kept.h"

namespace lumenote {

class SourcePages {
 public:
  /// The head outlives this object.
  explicit SourcePages(const KeptHead& head) : head_(head) {}

  /// Of text in the font of that number; empty if the head has none.
  std::optional<int> OfFont(int number) const;
  /// Of text that states no font.
  int OfDefault() const { return OfFont(head_.defaultFont).value_or(head_.page); }
  /// Of source that stands in text of the format, whose font has that charset.
  int At(const CharFormat& format, int charset) const;

 private:
  int OrOfDocument(int page) const { return page != 0 ? page : head_.page; }

  const KeptHead& head_;
};

}  // namespace lumenote

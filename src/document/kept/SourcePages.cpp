#include "document/kept/SourcePages.h"

#include <algorithm>

#include "base/codepages/CodePage.h"

namespace lumenote {

std::optional<int> SourcePages::OfFont(int number) const {
  const auto font = std::ranges::lower_bound(head_.fonts, number, {}, &KeptHead::Font::number);
  if (font == head_.fonts.end() || font->number != number) return std::nullopt;
  return OrOfDocument(font->page);
}

int SourcePages::At(const CharFormat& format, int charset) const {
  if ((format.stated & kStatesFont) == 0) return OfDefault();
  const auto font = std::ranges::find(head_.fonts, format.font, &KeptHead::Font::font);
  if (font != head_.fonts.end()) return OrOfDocument(font->page);
  return OrOfDocument(CodePageOfCharset(charset));
}

}  // namespace lumenote

#include "view/acts/TextDrag.h"

#include <algorithm>

#include "html/write/Writer.h"
#include "rtf/write/Writer.h"
#include "surface/editing/PastedPictures.h"

namespace lumenote {

std::u16string TextExcerpt::Beginning() const {
  constexpr Position kMost = 100;
  return written_.document.Text(range_.start, std::min(range_.end, range_.start + kMost));
}
std::string TextExcerpt::Rtf() const {
  return WriteRtf(written_.document, written_.range.start, written_.range.end);
}
std::string TextExcerpt::Html() const {
  return WriteHtml(written_.document, written_.range.start, written_.range.end);
}

std::vector<std::string> TextExcerpt::Images() const {
  return LonePicture(written_.document, range_);
}

bool TextDrag::Reselect() {
  if (!MayMove()) return false;
  view_.Select(text_.Range().start, text_.Range().end);
  return view_.IsAttached();
}

void TextDrag::Moved() {
  if (Reselect()) view_.Act([this] { view_.Surface().Clear(); });
}

}  // namespace lumenote

#include "view/acts/TextDrag.h"

#include "html/write/Writer.h"
#include "rtf/write/Writer.h"

namespace lumenote {

std::string TextExcerpt::Rtf() const { return WriteRtf(document_, range_.start, range_.end); }
std::string TextExcerpt::Html() const { return WriteHtml(document_, range_.start, range_.end); }

void TextDrag::Moved() {
  if (!MayMove()) return;
  view_.Act([this] {
    view_.Surface().UserSelect(text_.Range().start, text_.Range().end);
    view_.Surface().Clear();
  });
}

}  // namespace lumenote

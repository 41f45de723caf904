#include "surface/UserBench.h"

namespace lumenote {

std::u16string Unmarked(std::u16string_view marked) {
  std::u16string text = ReplaceEvery(ReplaceEvery(marked, u"|", u""), u"^", u"");
  return ReplaceEvery(ReplaceEvery(text, u"¶", u"\r\n"), u"↓", u"\v");
}

std::pair<Position, Position> MarksOf(std::u16string_view marked) {
  const auto caret = marked.find(u'|');
  const auto anchor = std::min(marked.find(u'^'), marked.size());
  const auto place = [&](std::size_t mark) {
    return static_cast<Position>(Unmarked(marked.substr(0, mark)).size());
  };
  return {anchor < marked.size() ? place(anchor) : place(caret), place(caret)};
}

std::u16string Marked(std::u16string text, Position anchor, Position caret) {
  const auto mark = [&](Position at, char16_t sign) {
    text.insert(static_cast<std::size_t>(at), 1, sign);
  };
  mark(std::max(anchor, caret), anchor > caret ? u'^' : u'|');
  if (anchor != caret) mark(std::min(anchor, caret), anchor > caret ? u'|' : u'^');
  return ReplaceEvery(ReplaceEvery(text, u"\r\n", u"¶"), u"\v", u"↓");
}

}  // namespace lumenote

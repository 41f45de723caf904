#include "surface/SurfaceContract.h"

#include "backends/headless/FixedBreaker.h"
#include "base/Strings.h"
#include "surface/DocumentSurface.h"

namespace lumenote {

std::shared_ptr<RichTextSurface> SurfaceContract::Make() {
  auto made = GetParam().make(clipboard, files);
  made->TextMode(kTextModeRichMultilevel);
  made->OnChange([this] { ++changes_; });
  return made;
}

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

void SelectAs(RichTextSurface& surface, std::u16string_view marked) {
  const auto [anchor, caret] = MarksOf(marked);
  surface.SelStart(anchor);
  surface.SelLength(caret - anchor);
}

void Put(RichTextSurface& surface, std::u16string_view marked) {
  surface.Text(Unmarked(marked));
  SelectAs(surface, marked);
}

std::u16string Marked(std::u16string text, Position anchor, Position caret) {
  const auto mark = [&](Position at, char16_t sign) {
    text.insert(static_cast<std::size_t>(at), 1, sign);
  };
  mark(std::max(anchor, caret), anchor > caret ? u'^' : u'|');
  if (anchor != caret) mark(std::min(anchor, caret), anchor > caret ? u'|' : u'^');
  return ReplaceEvery(ReplaceEvery(text, u"\r\n", u"¶"), u"\v", u"↓");
}

std::u16string Marked(const RichTextSurface& surface) {
  return Marked(surface.Text(), surface.SelStart(), surface.SelStart() + surface.SelLength());
}

namespace {

/// Lines of fifteen characters of ten points.
constexpr float kWidth = 1500;

struct HeadlessSurface {
  HeadlessSurface(Clipboard& clipboard, Files& files) : surface(clipboard, files, breaker) {}
  FixedBreaker breaker{kWidth};
  DocumentSurface surface;
};

std::shared_ptr<RichTextSurface> MakeHeadless(Clipboard& clipboard, Files& files) {
  const auto owner = std::make_shared<HeadlessSurface>(clipboard, files);
  return {owner, &owner->surface};
}

INSTANTIATE_TEST_SUITE_P(Document, SurfaceContract,
                         ::testing::Values(SurfaceMaker{"DocumentSurface", MakeHeadless}));

}  // namespace
}  // namespace lumenote

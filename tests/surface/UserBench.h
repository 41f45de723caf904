// A document surface with everything around it, and texts in which the selection is marked.
#pragma once
#include <string>
#include <utility>
#include <vector>

#include "backends/headless/FixedLayouter.h"
#include "base/Strings.h"
#include "surface/DocumentSurface.h"
#include "surface/Fakes.h"

namespace lumenote {

/// Text in tables: "|" is the caret, "^" the other end of a selection, "¶" a paragraph break, "↓" a
/// line break.
inline std::u16string Unmarked(std::u16string_view marked) {
  std::u16string text = ReplaceEvery(ReplaceEvery(marked, u"|", u""), u"^", u"");
  return ReplaceEvery(ReplaceEvery(text, u"¶", u"\r\n"), u"↓", u"\v");
}
inline std::u16string Marked(std::u16string text, Position anchor, Position caret) {
  const auto mark = [&](Position at, char16_t sign) {
    text.insert(static_cast<std::size_t>(at), 1, sign);
  };
  mark(std::max(anchor, caret), anchor > caret ? u'^' : u'|');
  if (anchor != caret) mark(std::min(anchor, caret), anchor > caret ? u'|' : u'^');
  return ReplaceEvery(ReplaceEvery(text, u"\r\n", u"¶"), u"\v", u"↓");
}
/// Where the marks stand in the text without them: {anchor, caret}.
inline std::pair<Position, Position> MarksOf(std::u16string_view marked) {
  const auto caret = marked.find(u'|');
  const auto anchor = std::min(marked.find(u'^'), marked.size());
  const auto place = [&](std::size_t mark) {
    return static_cast<Position>(Unmarked(marked.substr(0, mark)).size());
  };
  return {anchor < marked.size() ? place(anchor) : place(caret), place(caret)};
}

struct ViewLog final : SurfaceView {
  std::vector<DocumentChange> changes;
  int reveals = 0;
  Line (*shownLine)(Position) = nullptr;  // lines of its own

  void DocumentChanged(const DocumentChange& change) override { changes.push_back(change); }
  void SelectionChanged() override {}
  void WrapWidthChanged() override {}
  void RevealCaret() override { ++reveals; }
  int LinesPerPage() const override { return 3; }
  std::optional<Line> ShownLine(Position position) override {
    return shownLine ? std::optional(shownLine(position)) : std::nullopt;
  }
};

/// Lines of fifteen characters of ten points, pages of three lines.
struct UserBench {
  MemoryClipboard clipboard;
  MemoryFiles files;
  FixedBreaker breaker{1500};
  ViewLog view;
  DocumentSurface surface{clipboard, files, breaker};

  UserBench() { surface.TextMode(kTextModeRichMultilevel); }

  void Put(std::u16string_view marked) {
    surface.Text(Unmarked(marked));
    Select(marked);
    view = {};
    surface.View(&view);
  }
  void Select(std::u16string_view marked) {
    const auto [anchor, caret] = MarksOf(marked);
    surface.UserSelect(anchor, caret);
  }
  std::u16string Shown() const { return Marked(surface.Text(), surface.Anchor(), surface.Caret()); }
  /// Whether every key of a list separated by blanks did something.
  bool Press(std::u16string_view keys) {
    bool all = true;
    while (!keys.empty()) {
      const std::size_t length = std::min(keys.find(u' '), keys.size());
      all = surface.UserKey(ParseKey(keys.substr(0, length)).value()) && all;
      keys.remove_prefix(std::min(length + 1, keys.size()));
    }
    return all;
  }
};

}  // namespace lumenote

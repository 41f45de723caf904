// The line table against a layout of everything.
#include <gtest/gtest.h>

#include "backends/headless/FixedLayouter.h"
#include "base/Strings.h"
#include "document/LineTable.h"
#include "document/Model.h"

namespace lumenote {
namespace {

std::vector<Line> FullLayout(const Document& document, LineBreaker& breaker) {
  std::vector<Line> lines;
  for (Position p = 0; p < document.ParagraphCount(); ++p) {
    const Position end = document.ParagraphEnd(p);
    std::vector<Position> starts{document.ParagraphStart(p)};
    for (const Position at : breaker.Break(document, starts[0], end)) starts.push_back(at);
    for (std::size_t i = 0; i < starts.size(); ++i) {
      const bool last = i + 1 == starts.size();
      const Position next = last ? end : starts[i + 1];
      const bool broken = !last && document.At(next - 1) == u'\v';
      lines.push_back({starts[i], broken ? next - 1 : next, last ? end + 2 : next});
    }
  }
  lines.back().next = -1;
  return lines;
}

/// Words, blanks and breaks of both kinds in several sizes and indents.
class RandomNote {
 public:
  explicit RandomNote(unsigned seed) : dice_(seed) {
    for (int i = 0; i < 5; ++i)
      document_.Formats().characters.Intern({.size = static_cast<std::uint16_t>(16 + 4 * i)});
    for (int i = 0; i < 4; ++i)
      document_.Formats().paragraphs.Intern(
          {.firstIndent = i % 3 * 300, .hangingIndent = (2 - i) * 150, .rightIndent = i % 2 * 400});
    while (document_.Length() < 9000) Edit();
  }

  const Document& Content() const { return document_; }
  Position Below(Position limit) { return dice_.Below(limit); }
  /// Makes some edit and returns where it begins.
  Position Edit() {
    const Position length = document_.Length();
    const Position from = document_.SnapBackward(Below(length + 1));
    const Position to = document_.SnapForward(std::min(from + Below(60), length));
    const auto character = [](CharId id) { return (id + 1) % 5; };
    const auto paragraph = [](ParaId id) { return (id + 1) % 4; };
    Model inserted;
    switch (Below(8)) {
      case 0:
        return Replace(from, to, Fragment());
      case 1:
        return Replace(from, to, document_.MapFormats(from, to, character, paragraph));
      case 2:
        return Replace(from, from, PlainFragment(LongParagraph(), 1, 2));
      default:
        return Replace(from, from, RandomFragment(dice_, Below(Below(9) ? 40 : 2000), inserted));
    }
  }

 private:
  std::u16string LongParagraph() {
    std::u16string text;
    for (Position count = Below(40); count > 0; --count)
      text += u"a b c\v-\t   anticonstitutionnellement d e f ";
    return text;
  }
  Position Replace(Position from, Position to, const std::optional<Fragment>& fragment) {
    if (fragment) document_.Replace(from, to, *fragment);
    return from;
  }

  Dice dice_;
  Document document_;
};

TEST(LineTable, AgreesWithAFullLayoutAfterRandomEdits) {
  for (unsigned seed = 1; seed <= 20; ++seed) {
    RandomNote note(seed);
    FixedBreaker breaker(static_cast<float>(1000 + 400 * note.Below(5)));
    LineTable table(note.Content(), breaker);
    for (int round = 0; round < 40; ++round) {
      const std::vector<Line> lines = FullLayout(note.Content(), breaker);
      const int count = static_cast<int>(lines.size());
      for (int look = 0; look < 6; ++look) {
        const int i = note.Below(count);
        const Line& line = lines[static_cast<std::size_t>(i)];
        ASSERT_EQ(table.LineAt(line.start), line) << seed << ' ' << round;
        ASSERT_EQ(table.LineAt(std::max(line.start, line.end - 1)).start, line.start);
        if (i > 0) {
          ASSERT_EQ(table.LineAt(line.start - 1), lines[static_cast<std::size_t>(i) - 1]);
        }
        if (note.Below(4) > 0) continue;
        ASSERT_EQ(table.LineOf(line.start), i);
        ASSERT_EQ(table.LineStart(i), line.start);
        ASSERT_EQ(table.LineEnd(i), line.end);
      }
      if (round % 10 == 9) {
        ASSERT_EQ(table.LineStart(count), -1);
      }
      table.Edited(note.Edit());
    }
  }
}

}  // namespace
}  // namespace lumenote

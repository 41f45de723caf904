// Control words for paragraph formats.
#include <algorithm>
#include <cstdlib>

#include "rtf/read/Interpreter.h"
#include "rtf/words/ParagraphWords.h"

namespace lumenote {
namespace {

constexpr std::size_t kMaxTabs = 64;

int Clipped(int length) { return std::clamp(length, -kMaxLength, kMaxLength); }

void SetMultiple(int spacing, ParaFormat& format) {
  switch (spacing) {
    case kSingleLine:
      return;
    case kSingleLine * 3 / 2:
      format.lineRule = LineRule::OneAndHalf;
      return;
    case kSingleLine * 2:
      format.lineRule = LineRule::Double;
      return;
    default:
      format.lineRule = LineRule::Multiple;
      format.lineSpacing = spacing;
  }
}

void SetLineSpacing(int spacing, bool multiple, ParaFormat& format) {
  if (spacing == 0) return;
  const int size = std::abs(spacing);
  if (multiple) return SetMultiple(size, format);
  format.lineRule = spacing > 0 ? LineRule::AtLeast : LineRule::Exact;
  format.lineSpacing = size;
}

}  // namespace

void ParagraphState::AddTab(int position) {
  nextTab.position = position;
  auto changed = std::make_shared<TabStops>(tabs ? *tabs : TabStops());
  const auto at =
      std::lower_bound(changed->begin(), changed->end(), position,
                       [](const TabStop& tab, int limit) { return tab.position < limit; });
  if (at != changed->end() && at->position == position) {
    *at = nextTab;
  } else if (changed->size() < kMaxTabs) {
    changed->insert(at, nextTab);
  }
  tabs = std::move(changed);
  nextTab = {};
}

ParaFormat ParagraphState::Resolved() const {
  ParaFormat resolved = format;
  resolved.firstIndent = left + first;
  resolved.hangingIndent = -first;
  SetLineSpacing(line, multipleLines, resolved);
  const int depth = std::max(nesting, inTable ? 1 : 0);
  resolved.nesting = static_cast<std::uint8_t>(std::clamp(depth, 0, 255));
  return resolved;
}

void Interpreter::DefaultParagraph(int, const Token&) {
  BeginBody();
  EditParagraph() = {};
  opensAnew_ = true;
}

/// The paragraph's format, to change an attribute that the source states.
ParaFormat& Interpreter::StatedFormat(ParaStated attribute) {
  ParaFormat& format = EditParagraph().format;
  format.stated |= attribute;
  return format;
}

void Interpreter::Align(int value, const Token&) {
  StatedFormat(kStatesAlignment).alignment = static_cast<Alignment>(value);
  alignedLate_ |= opening_ && ParagraphNumber() != *opening_;
}

void Interpreter::Length(int row, const Token& word) {
  const LengthWord& length = kLengthWords[row];
  StatedFormat(length.stated).*length.length = Clipped(word.number);
}

void Interpreter::LeftIndent(int, const Token& word) {
  StatedFormat(kStatesLeftIndent);
  State().paragraph.left = Clipped(word.number);
}

void Interpreter::FirstIndent(int, const Token& word) {
  StatedFormat(kStatesFirstIndent);
  State().paragraph.first = Clipped(word.number);
}

void Interpreter::LineSpacing(int, const Token& word) {
  StatedFormat(kStatesLineSpacing);
  State().paragraph.line = Clipped(word.number);
}

void Interpreter::MultipleLines(int, const Token& word) {
  EditParagraph().multipleLines = word.number != 0;
}

void Interpreter::Tab(int value, const Token& word) {
  ParagraphState& paragraph = EditParagraph();
  if (static_cast<TabKind>(value) == TabKind::Bar) paragraph.nextTab.kind = TabKind::Bar;
  paragraph.AddTab(Clipped(word.number));
}

void Interpreter::TabKindIs(int value, const Token&) {
  EditParagraph().nextTab.kind = static_cast<TabKind>(value);
}

void Interpreter::TabLeaderIs(int value, const Token&) {
  EditParagraph().nextTab.leader = static_cast<std::uint8_t>(value);
}

void Interpreter::RightToLeft(int value, const Token&) {
  StatedFormat(kStatesDirection).rightToLeft = value != 0;
}

void Interpreter::InTable(int, const Token& word) {
  EditParagraph().inTable = !word.hasNumber || word.number != 0;
}

void Interpreter::TableNesting(int, const Token& word) {
  EditParagraph().nesting = word.number > 1 ? word.number : 0;
}

void Interpreter::List(int, const Token& word) { EditParagraph().list = word.number; }

void Interpreter::ListLevel(int, const Token& word) { EditParagraph().level = word.number; }

}  // namespace lumenote

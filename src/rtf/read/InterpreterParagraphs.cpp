// Control words for paragraph formats, and the formats that paragraphs get.
#include <algorithm>
#include <cstdlib>
#include <utility>

#include "rtf/read/Interpreter.h"
#include "rtf/words/LateWords.h"
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

// --- the format of a paragraph

/// What a group with all text of the paragraph says of it holds, though the paragraph ends outside.
void Interpreter::HoldParagraph() {
  const GroupState& group = State();
  if (group.paragraphEdit == Outer().paragraphEdit || placingMarker_) return;
  const bool first = group.contentAtStart <= paragraphStart_;
  if (first && contentCount_ > paragraphStart_) held_ = group.paragraph;
}

void Interpreter::OpenParagraph() {
  opening_ = ParagraphNumber();
  opensAnew_ = alignedLate_ = false;
}

ParagraphState& Interpreter::EditParagraph() {
  held_.reset();
  State().paragraphKnown = false;
  State().paragraphEdit = ++paragraphEdits_;
  return State().paragraph;
}

ParaId Interpreter::ParagraphNumber() {
  GroupState& state = State();
  if (!state.paragraphKnown) {
    state.paragraphId = NumberOf(state.paragraph);
    state.paragraphKnown = true;
  }
  return state.paragraphId;
}

ParaId Interpreter::NumberOf(const ParagraphState& paragraph) {
  ParaFormat format = paragraph.Resolved();
  format.bullet = HasBullet(paragraph);
  const bool listed = paragraph.list >= 0 && !paragraph.bullet;
  if (listed) {
    format.list = static_cast<std::uint16_t>(std::min(paragraph.list, 0xFFFE) + 1);
    format.level = static_cast<std::uint8_t>(std::clamp(paragraph.level, 0, 0xFF));
  }
  if (paragraph.tabs) format.tabs = TabsNumber(*paragraph.tabs);
  return formats_.paragraphs.Intern(format);
}

ParaId Interpreter::EndedParagraph() {
  paragraphStart_ = contentCount_;
  if (!held_) return Opened(ParagraphNumber());
  ParagraphState ended = *std::exchange(held_, std::nullopt);
  ended.inTable |= State().paragraph.inTable;
  ended.nesting = std::max(ended.nesting, State().paragraph.nesting);
  return Opened(NumberOf(ended));
}

/// The format of a paragraph that ends with `ended`, with that which it began with.
ParaId Interpreter::Opened(ParaId ended) {
  const ParaId began = std::exchange(opening_, std::nullopt).value_or(ended);
  const bool alignedLate = std::exchange(alignedLate_, false);
  if (began == ended) return ended;
  ParaFormat format = formats_.paragraphs[ended];
  const ParaFormat opening = OpeningOf(format, formats_.paragraphs[began], alignedLate);
  if (opening == format) return ended;
  format.opening = formats_.paragraphs.Intern(opening) + 1;
  return formats_.paragraphs.Intern(format);
}

/// The format that the source states in the beginning of a paragraph which ends in `format`. Lists
/// and tables are said only once, and so is an alignment behind the text, since with it readers
/// take what else is said there, too.
ParaFormat Interpreter::OpeningOf(const ParaFormat& format, ParaFormat began, bool alignedLate) {
  began.bullet = format.bullet;
  began.list = format.list;
  began.level = format.level;
  began.nesting = format.nesting;
  const bool numbered =
      formats_.words.Any(format.words, IsNumbering) || formats_.words.Any(began.words, IsNumbering);
  if (numbered) began.words = format.words;
  const bool late =
      alignedLate || began.alignment != format.alignment || !Addition(began, format, formats_);
  if (late && (format.stated & kStatesAlignment) != 0) {
    began.stated = static_cast<std::uint16_t>(began.stated & ~kStatesAlignment);
    began.alignment = Alignment::Left;
  }
  return began;
}

/// Groups can restore long lists at no cost in source bytes, so their total is limited.
TabsId Interpreter::TabsNumber(const TabStops& stops) {
  if (stops.size() > tabsLeft_) return 0;
  const std::uint32_t known = formats_.tabs.Size();
  const TabsId number = formats_.tabs.Intern(stops);
  if (formats_.tabs.Size() != known) tabsLeft_ -= stops.size();
  return number;
}

bool Interpreter::HasBullet(const ParagraphState& paragraph) const {
  return paragraph.bullet || lists_.IsBullet(paragraph.list, paragraph.level);
}

}  // namespace lumenote

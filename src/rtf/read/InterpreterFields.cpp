// Groups around characters: fields, and the numbers of list paragraphs.
#include <utility>

#include "rtf/read/Interpreter.h"
#include "rtf/read/KeptSource.h"

namespace lumenote {
namespace {

constexpr int kDeepestField = 32;  // nesting limit; deeper fields keep only their text

}  // namespace

void Interpreter::Field(int, const Token&) {
  BeginBody();
  GroupState& state = State();
  if (state.openFields == kDeepestField) return;
  ++state.openFields;
  state.fieldAt = tokens_.Start();
  state.fieldShown = false;
  state.contentBefore = contentCount_;
  state.keptBefore = items_.NextIndex();
}

/// A field has one result: the group whose first word says so. A list number before it is outside.
void Interpreter::FieldResult(int, const Token&) {
  const std::size_t from = State().fieldAt;
  if (from == GroupState::kNowhere || State().fieldShown || contentCount_ != State().contentBefore)
    return;
  if (!wasOpened_ && !wasStarred_) return;
  const KeptSource opening(tokens_.Source(from, tokens_.At()), State().fallback,
                           KeptSource::Piece::FieldOpening);
  if (opening.open != 1) return;
  needsTables_ |= opening.needsHead;
  items_.TakeSince(State().keptBefore);
  if (!marker_.empty()) PlaceMarker();
  for (auto group = groups_.rbegin(); group != groups_.rend() && group->fieldAt == from; ++group) {
    group->fieldShown = true;
    group->contentBefore = contentCount_;
    group->keptBefore = items_.NextIndex();
  }
  State().fieldAt = GroupState::kNowhere;
  EnterField(KeptField::Kind::Result, "{" + opening.text);
}

/// Makes the rest of the current group part of the field.
void Interpreter::EnterField(KeptField::Kind kind, std::string opening) {
  GroupState& state = State();
  state.field = formats_.fields.Intern({.opening = std::move(opening),
                                        .outer = state.field,
                                        .serial = formats_.NextSerial(),
                                        .kind = kind});
  state.inField = formats_.kept.Intern({.field = state.field});
  state.characterKnown = false;
}

/// At the end of `group`, attaches a field that shows nothing, as a whole, to the next character.
void Interpreter::EndField(const GroupState& group, const GroupState& around) {
  if (group.fieldAt == GroupState::kNowhere || group.fieldAt == around.fieldAt) return;
  if (contentCount_ != group.contentBefore) return;
  KeptSource source(tokens_.Source(group.fieldAt, tokens_.At()), around.fallback,
                    KeptSource::Piece::Field);
  needsTables_ |= source.needsHead;
  items_.TakeSince(group.keptBefore);
  items_.Keep(KeptItem::Kind::Field, "{" + std::move(source).Closed() + "}");
}

/// The visible number or bullet of a paragraph whose text follows. A source may say it twice, in
/// different groups; several of the same kind are text.
void Interpreter::Marker(int, const Token& word) {
  const std::size_t from = tokens_.At();
  tokens_.SkipGroup();
  ++contentCount_;
  if (!marker_.empty() && word.text == markerWord_) PlaceMarker();
  if (!marker_.empty() || placingMarker_) return;
  marker_ = tokens_.Source(from, tokens_.At());
  markerIndex_ = items_.NextIndex();
  markerFallback_ = State().fallback;
  markerWord_ = word.text;
}

bool Interpreter::IsNumbered() const {
  const ParagraphState& paragraph = State().paragraph;
  return paragraph.list >= 0 || paragraph.numbered;
}

/// Reads the marker as text, in a group of its own that it cannot leave. Words that number the
/// paragraph do not end it.
void Interpreter::PlaceMarker() {
  const std::string_view marker = std::exchange(marker_, {});
  if (HasBullet(State().paragraph)) return;
  const auto depth = static_cast<std::ptrdiff_t>(groups_.size());
  groups_.push_back(groups_.back());
  State().fieldAt = GroupState::kNowhere;
  State().fallback = markerFallback_;
  numbering_ = IsNumbered();
  if (numbering_) EnterField(KeptField::Kind::ListNumber, "{\\" + std::string(markerWord_));
  const Tokenizer tokens = std::exchange(tokens_, Tokenizer(marker));
  const std::size_t outermost = std::exchange(outermost_, groups_.size());
  const std::size_t uncounted = std::exchange(uncounted_, 0);
  const bool atText = std::exchange(atText_, false);
  const bool behindText = behindText_;
  const KeptItems behind = items_.TakeSince(markerIndex_);
  placingMarker_ = true;
  Interpret();
  placingMarker_ = false;
  numbering_ = false;
  const KeptItems left = items_.TakeSince(markerIndex_);
  items_.Keep(behind);
  items_.Keep(left);
  borderOf_ = WordScope::None;
  tokens_ = tokens;
  outermost_ = outermost;
  uncounted_ = uncounted;
  atText_ = atText;
  behindText_ = behindText;
  swallow_ = 0;
  starred_ = false;
  groups_.erase(groups_.begin() + depth, groups_.end());
}

}  // namespace lumenote

#include "view/acts/ViewMouse.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "document/Links.h"
#include "surface/keys/Words.h"
#include "view/acts/FollowedLinks.h"
#include "view/acts/TextUnits.h"

namespace lumenote {

bool ViewMouse::InSelection(PixelPoint point) const {
  const Selection selection = view_.Surface().Selected();
  if (selection.Length() == 0) return false;
  const Position character = view_.Pane().CharacterAt(point);
  return character >= selection.start && character < selection.end;
}

/// The target to open by a click there; empty without one, or without Ctrl.
std::u16string ViewMouse::LinkUnder(PixelPoint point) const {
  if (!control_) return {};
  std::u16string address = LinkAt(view_.Surface().Content(), view_.Pane().CharacterAt(point));
  return MayFollow(address) ? address : std::u16string();
}

/// Not if Ctrl was let go meanwhile.
void ViewMouse::OpenLink() const {
  const std::u16string address = LinkUnder(pressed_);
  if (!address.empty()) FollowLink(view_, address);
}

void ViewMouse::ShowPointer() const {
  const bool opens = !LinkUnder(last_).empty();
  view_.Host().ShowPointer(opens                ? PointerShape::Hand
                           : InSelection(last_) ? PointerShape::Arrow
                                                : PointerShape::Text);
}

void ViewMouse::Control(bool held) {
  if (std::exchange(control_, held) != held && state_ == State::Idle) ShowPointer();
}

Selection ViewMouse::Around(Position position) const {
  const Document& document = view_.Surface().Content();
  if (unit_ == Unit::Word) return WordAt(document, position);
  if (unit_ == Unit::Character) return {position, position};
  return UnitAt(document, position, TextUnit::Paragraph);
}

void ViewMouse::Begin(Unit unit, Position position, bool extend) {
  state_ = State::Selecting;
  unit_ = unit;
  const Position anchor = view_.Surface().Anchor();
  origin_ = extend ? Selection{anchor, anchor} : Around(position);
  ExtendTo(position);
}

void ViewMouse::ExtendTo(Position position) {
  const Selection here = Around(position);
  const bool backwards = position < origin_.start;
  view_.Select(backwards ? origin_.end : origin_.start,
               backwards ? here.start : std::max(here.end, origin_.end));
}

void ViewMouse::Down(const Press& press) {
  if (!view_.Complete()) return;
  pressed_ = last_ = press.at;
  const Position position = view_.Pane().PositionAt(press.at);
  const bool third = IsThird(press);
  doubleClick_.reset();
  if (third)
    Begin(Unit::Paragraph, position, false);
  else if (!press.extend && !LinkUnder(press.at).empty())
    state_ = State::MayOpen;
  else if (!press.extend && InSelection(press.at))
    state_ = State::MayDrag;
  else
    Begin(Unit::Character, position, press.extend);
}

void ViewMouse::DoubleClick(const Press& press) {
  last_ = press.at;
  doubleClick_ = press;
  Begin(Unit::Word, view_.Pane().PositionAt(press.at), false);
}

bool ViewMouse::IsFar(PixelPoint one, PixelPoint other) const {
  const double distance = std::abs(one.x - other.x) + std::abs(one.y - other.y);
  return distance >= view_.Host().Pointer().dragDistance;
}

bool ViewMouse::IsThird(const Press& press) const {
  if (!doubleClick_ || IsFar(doubleClick_->at, press.at)) return false;
  const auto since = static_cast<double>(press.time - doubleClick_->time);
  return since < view_.Host().Pointer().doubleClickTime;
}

void ViewMouse::Move(PixelPoint at, bool held) {
  last_ = at;
  if (!held) return ShowPointer();
  if (state_ == State::MayDrag && IsFar(last_, pressed_)) {
    state_ = State::Idle;
    return view_.Host().Drag();
  }
  if (state_ != State::Selecting) return;
  const bool outside = at.y < 0 || at.y > view_.Pane().Size().height;
  if (std::exchange(scrolling_, outside) != outside) view_.Host().ScrollTimer(outside);
  ExtendTo(view_.Pane().PositionAt(at));
}

// Scrolls faster the further the mouse is outside.
void ViewMouse::ScrollOn() {
  const double height = view_.Pane().Size().height;
  const double beyond = last_.y < 0 ? last_.y : std::max(0.0, last_.y - height);
  if (state_ != State::Selecting || beyond == 0) return Cancel();
  view_.ScrollBy(beyond);
  ExtendTo(view_.Pane().PositionAt({last_.x, std::clamp(last_.y, 0.0, height - 1)}));
}

void ViewMouse::Up(PixelPoint at) {
  const State pressed = state_;
  Cancel();
  if (pressed == State::MayOpen && !IsFar(at, pressed_)) OpenLink();
  if (pressed == State::MayDrag) Begin(Unit::Character, view_.Pane().PositionAt(at), false);
  state_ = State::Idle;
}

void ViewMouse::Cancel() {
  state_ = State::Idle;
  if (std::exchange(scrolling_, false)) view_.Host().ScrollTimer(false);
}

}  // namespace lumenote

#include "forms/Form.h"

#include <algorithm>
#include <new>
#include <utility>

#include "base/Numbers.h"
#include "base/Strings.h"
#include "forms/Button.h"
#include "forms/Menu.h"
#include "forms/Timer.h"
#include "lumenote/Platform.h"

namespace lumenote {
namespace {

constexpr KeyStroke kMenuKey = {.name = KeyName::Function, .character = 10};

}  // namespace

Form::Form(WindowList& windows, std::string name, Rect bounds, std::u16string caption)
    : Element(*this, std::move(name)),
      windows_(windows),
      caption_(std::move(caption)),
      bounds_(bounds) {}

Form::~Form() { windows_.Leave(*this); }

void Form::Enter() {
  for (Form* form = this; form; form = form->holder_) ++form->depth_;
}

// The last act on this form; a holder goes after what it holds.
void Form::Leave() {
  Form* const holder = holder_;
  if (--depth_ == 0 && unloaded_ && Released) {
    const auto released = std::move(Released);
    released();
  }
  if (holder) holder->Leave();
}

void Form::Caption(std::u16string_view text) {
  if (text == caption_) return;
  caption_ = text;
  Changed(Property::Caption);
}

void Form::BackColor(std::int32_t colour) {
  if (colour == backColor_) return;
  backColor_ = colour;
  Changed(Property::BackColor);
}

void Form::OnTop(bool on) {
  if (on == onTop_) return;
  onTop_ = on;
  Changed(Property::OnTop);
}

// --- place

void Form::Bounds(Rect bounds) {
  if (bounds.width < 0 || bounds.height < 0) throw RuntimeError(ErrorNumber::InvalidPropertyValue);
  if (bounds == bounds_) return;
  const bool resized = bounds.width != bounds_.width || bounds.height != bounds_.height;
  bounds_ = bounds;
  Changed(Property::Geometry);
  if (resized) Raise([this] { Form_Resize(); });
}

void Form::Left(float twips) { Bounds({twips, bounds_.top, bounds_.width, bounds_.height}); }

void Form::Top(float twips) { Bounds({bounds_.left, twips, bounds_.width, bounds_.height}); }

void Form::Width(float twips) { Bounds({bounds_.left, bounds_.top, twips, bounds_.height}); }

void Form::Height(float twips) { Bounds({bounds_.left, bounds_.top, bounds_.width, twips}); }

void Form::CentreOver(const Rect& other) {
  Left(std::max(0.0F, other.left + (other.width - Width()) / 2));
  Top(std::max(0.0F, other.top + (other.height - Height()) / 2));
}

void Form::UserResize(float width, float height) {
  bounds_.width = width;
  bounds_.height = height;
  Raise([this] { Form_Resize(); });
}

void Form::UserMove(float left, float top) {
  bounds_.left = left;
  bounds_.top = top;
}

void Form::UserMouseMove(const MouseEvent& event) {
  Raise([&] { Form_MouseMove(event); });
}

void Form::AddShortcut(std::u16string_view key, std::function<void()> act) {
  shortcuts_.push_back({*ParseKey(key), std::move(act)});
}

bool Form::HasShortcut(const KeyStroke& key) const {
  return key == kMenuKey || std::ranges::find(shortcuts_, key, &Shortcut::key) != shortcuts_.end();
}

bool Form::UserKey(const KeyStroke& key) {
  const auto shortcut = std::ranges::find(shortcuts_, key, &Shortcut::key);
  if (shortcut != shortcuts_.end()) {
    CompleteComposition();
    LeaveMenuBar();
    Raise(shortcut->act);
    return true;
  }
  if (key == kMenuKey) return UserMenuKey();
  if (key.control || key.alt) return false;
  Button* button = key.name == KeyName::Return   ? defaultButton_
                   : key.name == KeyName::Escape ? cancelButton_
                                                 : nullptr;
  if (button && button->Enabled() && button->Visible()) {
    button->UserClick();
    return true;
  }
  if (key.name != KeyName::Escape || !escapeCloses_) return false;
  Unload();
  return true;
}

// --- the menu bar

bool Form::UserMenuKey() {
  if (menuBarFocused_) {
    LeaveMenuBar();
    return true;
  }
  Raise([this] { Form_EnterMenuBar(); });
  if (!peer_ || !HasMenuBar()) return false;
  UserMenuBarFocus(true);
  peer_->FocusMenuBar(true);
  return true;
}

// A release that has not come by then was lost to another window.
void Form::UserMenuBarFocus(bool has) {
  if (!has) return LeaveMenuBar();
  menuBarFocused_ = true;
  menuBarLeft_ = false;
  pressed_ = false;
}

void Form::UserPress() {
  pressed_ = true;
  LeaveMenuBar();
}

void Form::UserRelease() {
  pressed_ = false;
  TellMenuBarLeft();
}

void Form::LeaveMenuBar() {
  if (!std::exchange(menuBarFocused_, false)) return;
  menuBarLeft_ = true;
  if (peer_) peer_->FocusMenuBar(false);
  TellMenuBarLeft();
}

void Form::TellMenuBarLeft() {
  if (pressed_ || !std::exchange(menuBarLeft_, false)) return;
  Raise([this] { Form_LeaveMenuBar(); });
}

bool Form::IsForMenuBar(const KeyStroke& key) const {
  return menuBarFocused_ && (key == kMenuKey || key.name == KeyName::Escape);
}

// --- life

void Form::Load() {
  if (loaded_) return;
  windows_.Enter(*this);
  loaded_ = true;
  unloaded_ = false;
  lost_ = false;
  try {
    peer_ = Machine().Windows().Realise(*this);
    RearmTimers();
  } catch (...) {
    TakeDown();
    throw;
  }
  Raise([this] { Form_Load(); });
}

void Form::RearmTimers() {
  for (Timer* timer : timers_) timer->Rearm();
}

void Form::Show(Form* owner) {
  const InUse use(*this);
  Load();
  if (!loaded_) return;
  ownerWindow_ = owner;
  if (!visible_) {
    visible_ = true;
    Changed(Property::Visible);
    Raise([this] { Form_Resize(); });
  }
  if (peer_) peer_->Activate();
  if (loaded_) UserActivate();
  if (loaded_) FocusFirst();
}

void Form::Activate() {
  if (!visible_ || !peer_ || windows_.Active() == this) return;
  if (const Form* modal = windows_.TopModal(); modal && modal != this) return;
  peer_->Activate();
  UserActivate();
}

void Form::FocusFirst() {
  if (activeControl_) return;
  for (Element* element : elements_) {
    auto* control = dynamic_cast<Control*>(element);
    if (control && control->TakesFocus() && control->Visible() && control->Enabled())
      return control->SetFocus();
  }
}

void Form::ShowModal() {
  const InUse use(*this);
  modal_ = true;
  Show();
  Machine().Windows().RunUntil([this] { return !visible_; });
  modal_ = false;
}

void Form::UserActivate() {
  if (!windows_.Activate(*this)) return;
  Raise([this] { Form_Activate(); });
}

bool Form::Unload() {
  if (!loaded_ || unloading_) return !loaded_;
  const InUse use(*this);
  unloading_ = true;
  CompleteComposition();
  bool mayGo = false;  // an error on the way to the decision decides nothing
  Raise([&] { mayGo = Form_QueryUnload(); });
  if (mayGo) Raise([this] { Form_Unload(); });
  unloading_ = false;
  if (!mayGo && !lost_) return false;
  TakeDown();
  if (Unloaded) Unloaded();
  return true;
}

void Form::CompleteComposition() {
  Raise([this] {
    if (activeControl_) activeControl_->CompleteComposition();
  });
}

void Form::Keep() {
  CompleteComposition();
  Raise([this] { Form_Keep(); });
}

void Form::Abandon() {
  if (!loaded_) return;
  const InUse use(*this);
  Keep();
  if (unloading_) return;
  TakeDown();
  if (Unloaded) Unloaded();
}

void Form::Lose() {
  lost_ = true;
  Abandon();
}

void Form::TakeDown() {
  loaded_ = false;
  visible_ = false;
  menuBarFocused_ = false;
  menuBarLeft_ = false;
  pressed_ = false;
  unloaded_ = true;
  RearmTimers();
  peer_.reset();
  Form* next = windows_.Deactivate(*this);
  windows_.Leave(*this);
  if (next) next->UserActivate();
}

// --- events

void Form::Raise(const std::function<void()>& event) {
  const InUse use(*this);
  try {
    event();
  } catch (const RuntimeError& error) {
    ShowFailure(&error);
  } catch (const std::bad_alloc&) {
    ShowFailure(nullptr);
  }
}

void Form::ShowFailure(const RuntimeError* error) {
  try {
    Machine().Windows().EventFailed(error ? *error : RuntimeError(ErrorNumber::OutOfMemory), this);
  } catch (const RuntimeError&) {
    // Where no box can be shown the window lives on without a word.
  } catch (const std::bad_alloc&) {
  }
}

MessageBox::Answer Form::Ask(const MessageBox& box) { return Machine().Windows().Show(box, this); }

void Form::PopUp(Menu& menu, Control& control, Point at) {
  const InUse use(*this);
  menu.UserOpen();
  if (!peer_) return;
  for (Control* inner = &control; inner; inner = dynamic_cast<Control*>(&inner->Parent())) {
    at.x += inner->Left();
    at.y += inner->Top();
  }
  peer_->PopUp(menu, at);
}

// --- parts

Element* Form::Find(std::string_view name) {
  const auto found = std::find_if(elements_.begin(), elements_.end(),
                                  [&](const Element* element) { return element->Name() == name; });
  return found == elements_.end() ? nullptr : *found;
}

bool Form::HasMenuBar() const {
  return std::any_of(menus_.begin(), menus_.end(),
                     [](const Menu* menu) { return menu->Visible(); });
}

void Form::Describe(MemberTable& members) {
  Element::Describe(members);
  members.Add(
      "Caption", [this] { return Value(Caption()); },
      [this](const Value& value) { Caption(TextOf(value)); });
  const auto length = [&](std::string_view name, float Rect::*side) {
    members.Add(
        name, [this, side] { return Value(bounds_.*side); },
        [this, side](const Value& value) {
          Rect bounds = bounds_;
          bounds.*side = static_cast<float>(NumberOf(value));
          Bounds(bounds);
        });
  };
  length("Left", &Rect::left);
  length("Top", &Rect::top);
  length("Width", &Rect::width);
  length("Height", &Rect::height);
  members.Add("Visible", [this] { return Value(Visible()); });
  members.Add("TopMost", [this] { return Value(OnTop()); });
  members.Add("ActiveControl", [this] {
    return activeControl_ ? Value(FromUtf8(activeControl_->Name())) : Value();
  });
  members.Add(
      "BackColor", [this] { return Value(BackColor()); },
      [this](const Value& value) { BackColor(ToInt32(NumberOf(value))); });
}

}  // namespace lumenote

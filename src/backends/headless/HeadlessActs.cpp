// Performs user input by calling the `User...` members.
#include "backends/headless/HeadlessActs.h"

#include <algorithm>

#include "backends/headless/HeadlessBackend.h"
#include "base/Strings.h"
#include "base/Twips.h"
#include "forms/Form.h"
#include "forms/Menu.h"
#include "forms/controls/buttons/UpDown.h"
#include "forms/controls/edits/ComboBox.h"

namespace lumenote {
namespace {

PixelPoint PixelsOf(Point twips) { return {twips.x / kTwipsPerPixel, twips.y / kTwipsPerPixel}; }

/// Units of the key at the start of the text; CR LF and a surrogate pair are one key.
std::size_t KeyLength(std::u16string_view text) {
  const bool pair = text.starts_with(u"\r\n") ||
                    (text.size() > 1 && IsHighSurrogate(text[0]) && IsLowSurrogate(text[1]));
  return pair ? 2 : 1;
}

/// Whether the window still exists; an event may have closed it.
class StillLoaded {
 public:
  explicit StillLoaded(Form& form) : windows_(form.Windows()), form_(&form) {}
  explicit operator bool() const {
    const auto& loaded = windows_.Loaded();
    return std::find(loaded.begin(), loaded.end(), form_) != loaded.end();
  }

 private:
  const WindowList& windows_;
  const Form* form_;
};

void MouseIn(HeadlessView& view, UserActs::MouseAct act, const MouseEvent& event) {
  const PixelPoint at = PixelsOf(event.at);
  const bool left = event.button == MouseButton::Left;
  if (act == UserActs::MouseAct::Move) view.Mouse().Move(at, left);
  if (act == UserActs::MouseAct::Down && left) view.Mouse().Down({.at = at});
  if (act == UserActs::MouseAct::Up && left) view.Mouse().Up(at);
}

/// After the act no button is held; a move may be the first that tells so.
bool Releases(UserActs::MouseAct act, const MouseEvent& event) {
  return act == UserActs::MouseAct::Up ||
         (act == UserActs::MouseAct::Move && event.button == MouseButton::None);
}

}  // namespace

/// Keys that the control does not handle go to its window.
void HeadlessActs::PressKey(Control& control, const KeyStroke& key) {
  Form& form = control.Owner();
  const auto view = backend_.ViewOf(control);
  const bool used = view ? view->Keys().Press(key, {}) : control.UserKey(key);
  if (!used) form.UserKey(key);
}

void HeadlessActs::TypeKey(Control& control, std::u16string_view key) {
  if (const auto view = backend_.ViewOf(control))
    view->Text().Type(key);
  else if (key == u"\r\n")
    PressKey(control, {.name = KeyName::Return});
  else
    control.UserType(key);
}

void HeadlessActs::Click(Control& control) {
  const StillLoaded loaded(control.Owner());
  const Point middle{control.Width() / 2, control.Height() / 2};
  Mouse(control, MouseAct::Down, {MouseButton::Left, middle});
  Mouse(control, MouseAct::Up, {MouseButton::Left, middle});
  if (loaded) control.UserClick();
}

void HeadlessActs::DoubleClick(Control& control) {
  const StillLoaded loaded(control.Owner());
  Click(control);
  if (!loaded) return;
  const Point middle{control.Width() / 2, control.Height() / 2};
  if (const auto view = backend_.ViewOf(control))
    view->Mouse().DoubleClick({.at = PixelsOf(middle)});
  control.UserDoubleClick();
}

void HeadlessActs::Choose(Menu& entry) { entry.UserClick(); }

void HeadlessActs::Open(Menu& menu) { menu.UserOpen(); }

void HeadlessActs::Type(Control& control, std::u16string_view text) {
  control.SetFocus();
  const StillLoaded loaded(control.Owner());
  const std::u16string keys = WithCrLf(text);
  for (std::u16string_view rest = keys; !rest.empty() && loaded;) {
    const std::size_t length = KeyLength(rest);
    TypeKey(control, rest.substr(0, length));
    rest.remove_prefix(length);
  }
}

void HeadlessActs::Key(Control& control, const KeyStroke& key) {
  if (control.Owner().IsForMenuBar(key)) return control.Owner().LeaveMenuBar();
  control.SetFocus();
  PressKey(control, key);
}

void HeadlessActs::Select(RichTextBox& box, Position start, Position length) {
  box.SetFocus();
  const auto shown = backend_.ViewOf(box);
  NoteView& view = shown->Text();
  const Position end = view.Surface().Content().Length();
  start = std::min(start, end);
  view.Select(start, start + std::min(length, end - start));
}

void HeadlessActs::Mouse(Control& control, MouseAct act, const MouseEvent& event) {
  Form& form = control.Owner();
  if (act == MouseAct::Down) form.UserPress();
  if (act == MouseAct::Down) control.SetFocus();
  const StillLoaded loaded(form);
  if (const auto view = backend_.ViewOf(control)) MouseIn(*view, act, event);
  if (!loaded) return;
  if (act == MouseAct::Move) control.UserMouseMove(event);
  if (act == MouseAct::Up) control.UserMouseUp(event);
  if (loaded && Releases(act, event)) form.UserRelease();
}

void HeadlessActs::Drag(RichTextBox& box, Position start, Position length, Position to) {
  Select(box, start, length);
  const auto shown = backend_.ViewOf(box);
  HeadlessView& view = *shown;
  view.Text().Pane().Reveal(to);
  const std::optional<PixelRect> caret = view.Text().Pane().CaretAt(to);
  if (!box.Locked() && caret)
    view.Drop().DropOwn({caret->left, (caret->top + caret->bottom) / 2}, false);
}

void HeadlessActs::Spin(UpDown& spinner, bool up) {
  spinner.SetFocus();
  spinner.UserSpin(up);
}

void HeadlessActs::Pick(ComboBox& combo, int index) {
  combo.SetFocus();
  combo.UserPick(index);
}

void HeadlessActs::Drop(ComboBox& combo) {
  combo.SetFocus();
  combo.UserDrop();
}

void HeadlessActs::Resize(Form& form, float width, float height) { form.UserResize(width, height); }

void HeadlessActs::Activate(Form& form) { form.UserActivate(); }

void HeadlessActs::Close(Form& form) { form.UserClose(); }

}  // namespace lumenote

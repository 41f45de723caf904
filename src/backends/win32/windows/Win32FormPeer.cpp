#include "backends/win32/windows/Win32FormPeer.h"

#include <cmath>

#include "backends/win32/system/NativeText.h"
#include "backends/win32/view/SurfaceWindow.h"
#include "backends/win32/windows/OwnIcon.h"
#include "backends/win32/windows/keys/KeyNavigation.h"
#include "base/ScopedFlag.h"
#include "forms/Button.h"
#include "forms/controls/edits/RichTextBox.h"
#include "forms/controls/labels/Label.h"

namespace lumenote {
namespace {

WindowKind FormKind(const Form& form) {
  constexpr DWORD kResizing = WS_THICKFRAME | WS_MAXIMIZEBOX;
  const DWORD frame = form.IsFixedSize() ? WS_OVERLAPPEDWINDOW & ~kResizing : WS_OVERLAPPEDWINDOW;
  return {OwnClass(L"LumenoteForm"), frame | WS_CLIPCHILDREN, WS_EX_CONTROLPARENT};
}

bool Has(HWND window, int which, LONG_PTR style) {
  return (GetWindowLongPtrW(window, which) & style) != 0;
}

BOOL CALLBACK EndBox(HWND window, LPARAM owner) {
  if (GetWindow(window, GW_OWNER) == reinterpret_cast<HWND>(owner) && IsWindowVisible(window) &&
      !Window::Of(window))
    EndDialog(window, IDNO);
  return TRUE;
}

}  // namespace

Win32FormPeer::Win32FormPeer(Form& form, PeerServices& services)
    : form_(form),
      services_(services),
      window_(std::make_shared<Window>(nullptr, FormKind(form))),
      stacking_(form, *window_, services.Windows()),
      scale_(Scale::Of(window_->Handle())),
      menus_(form, window_),
      content_(std::make_shared<ContentWindow>(Handle())) {
  ShowOwnIcon(Handle());
  services_.Windows().Add(form, *window_);
  content_->mouseMoved = [this](POINT at) {
    form_.UserMouseMove({MouseButton::None, {scale_.Twips(at.x), scale_.Twips(at.y)}});
  };
  content_->pressed = [this] { Pressed(); };
  content_->released = [this] { Released(); };
  window_->Listener(this);
  AddControls(form, content_->Handle());
  NameControls();
  for (const Property property : {Property::Caption, Property::BackColor, Property::Geometry})
    UpdateForm(property);
  ShowMenuBar();
  ShowDefault();
}

// A box above a closing window would lock the next window. What the system makes active then is not
// the user's doing.
Win32FormPeer::~Win32FormPeer() {
  window_->Listener(nullptr);
  content_->mouseMoved = nullptr;
  content_->pressed = nullptr;
  content_->released = nullptr;
  for (const auto& [control, peer] : controls_) services_.Windows().Remove(*control);
  services_.Windows().Remove(form_);
  services_.Gone(form_);
  EndBoxes();
  lock_.reset();
  if (Handle()) ShowWindow(Handle(), SW_HIDE);
  controls_.clear();
}

void Win32FormPeer::EndBoxes() {
  EnumThreadWindows(GetCurrentThreadId(), EndBox, reinterpret_cast<LPARAM>(Handle()));
}

void Win32FormPeer::AddControls(const Container& container, HWND parent) {
  for (Control* control : container.Controls()) Add(*control, parent);
}

void Win32FormPeer::Add(Control& control, HWND parent) {
  auto peer = MakeControlPeer(control, parent, *this);
  const HWND native = peer->Native().Handle();
  if (peer->IsDocked()) {
    SetParent(native, Handle());
    docked_ = native;
  }
  services_.Windows().Add(control, peer->Native());
  if (const auto* container = dynamic_cast<const Container*>(&control))
    AddControls(*container, native);
  controls_[&control] = std::move(peer);
}

void Win32FormPeer::Add(Control& control) {
  const auto* outer = dynamic_cast<const Control*>(&control.Parent());
  Add(control, outer ? controls_.at(outer)->Native().Handle() : content_->Handle());
}

void Win32FormPeer::Remove(Control& control) {
  if (!controls_.contains(&control)) return;
  services_.Windows().Remove(control);
  controls_.erase(&control);
}

ControlPeer* Win32FormPeer::PeerOf(const Control& control) const {
  const auto found = controls_.find(&control);
  return found == controls_.end() ? nullptr : found->second.get();
}

// --- state

void Win32FormPeer::Update(Element& element, Property property) {
  if (const auto peer = controls_.find(&element); peer != controls_.end()) {
    peer->second->Update(property);
    if (peer->second->IsDocked()) LayOutParts();
  } else if (const auto* menu = dynamic_cast<const Menu*>(&element)) {
    menus_.Update(*menu);
    ShowMenuBar();
  } else if (&element == &form_) {
    UpdateForm(property);
  }
  if (property == Property::Caption) Rename(element);
}

// The many cells of a grid name nothing.
void Win32FormPeer::Rename(const Element& element) {
  const auto* label = dynamic_cast<const Label*>(&element);
  if (!label || label->Style() == LabelStyle::Text) NameControls();
}

void Win32FormPeer::NameControls() {
  for (const auto& [control, peer] : controls_) peer->ShowName();
}

void Win32FormPeer::UpdateForm(Property property) {
  if (property == Property::Caption) SetWindowTextW(Handle(), Wide(form_.Caption()));
  if (property == Property::Geometry) ShowGeometry();
  if (property == Property::Visible) ShowVisible();
  if (property == Property::OnTop) services_.Restack();
  if (property == Property::BackColor) content_->Ground(form_.BackColor());
}

// A minimised window is placed when it is restored.
void Win32FormPeer::ShowGeometry() {
  const ScopedFlag placing(placing_);
  WindowGeometry::Place(Handle(), form_.Bounds(), scale_);
  geometry_.Settle(Handle());
  LayOutParts();
}

void Win32FormPeer::ShowMenuBar() {
  const auto font = reinterpret_cast<WPARAM>(services_.Fonts().Get({}, 0, scale_));
  SendMessageW(menus_.Bar().Handle(), WM_SETFONT, font, TRUE);
  LayOutParts();
}

void Win32FormPeer::LayOutParts() {
  RECT client;
  GetClientRect(Handle(), &client);
  const int height = scale_.Pixels(kBarHeight);
  const int top = form_.HasMenuBar() ? height : 0;
  MoveWindow(menus_.Bar().Handle(), 0, 0, client.right, height, TRUE);
  ShowWindow(menus_.Bar().Handle(), form_.HasMenuBar() ? SW_SHOWNA : SW_HIDE);
  MoveWindow(content_->Handle(), 0, top, client.right, client.bottom - top, TRUE);
  if (docked_)
    SetWindowPos(docked_, HWND_TOP, 0, client.bottom - height, client.right, height,
                 SWP_NOACTIVATE);
}

void Win32FormPeer::ShowVisible() {
  lock_.reset();
  if (!form_.Visible()) {
    ShowWindow(Handle(), SW_HIDE);
    return;
  }
  stacking_.Own();
  ShowGeometry();
  stacking_.ShowOnTop();
  if (form_.IsModal()) lock_ = std::make_unique<ModalLock>(Handle());
}

std::optional<Rect> Win32FormPeer::SelectionIn(const RichTextBox& box) {
  auto& surface = dynamic_cast<SurfaceWindow&>(controls_.at(&box)->Native());
  const auto selected = surface.Text().SelectionBox();
  if (!selected) return std::nullopt;
  POINT corner = {std::lround(selected->left), std::lround(selected->top)};
  ClientToScreen(surface.Handle(), &corner);
  return Rect{scale_.Twips(corner.x), scale_.Twips(corner.y), scale_.Twips(selected->Width()),
              scale_.Twips(selected->Height())};
}

void Win32FormPeer::PopUp(Menu& menu, Point at) {
  POINT corner = {scale_.Pixels(at.x), scale_.Pixels(at.y)};
  ClientToScreen(content_->Handle(), &corner);
  menus_.PopUp(menu, corner);
}

// --- focus and activation

// A window that is not active gives the keyboard to its control when it becomes so.
void Win32FormPeer::Focus(Control& control) {
  if (GetActiveWindow() == Handle()) SetFocus(controls_.at(&control)->FocusTarget());
}

void Win32FormPeer::FocusMenuBar(bool on) {
  if (on)
    menus_.TakeKeyboard();
  else if (GetFocus() == menus_.Bar().Handle())
    SetFocus(Handle());
}

void Win32FormPeer::FocusInside() {
  const Control* control = form_.ActiveControl();
  if (!control || !control->Visible() || !control->Enabled()) return;
  if (const ControlPeer* peer = PeerOf(*control)) SetFocus(peer->FocusTarget());
}

void Win32FormPeer::Focused(Control& control) {
  form_.ActiveControl(&control);
  ShowDefault();
}

// A button with the keyboard is the one that Return clicks.
void Win32FormPeer::ShowDefault() {
  const Control* marked = dynamic_cast<const Button*>(form_.ActiveControl());
  if (!marked) marked = form_.DefaultButton();
  for (const auto& [control, peer] : controls_) peer->ShowDefault(control == marked);
}

void Win32FormPeer::Activate() {
  if (IsIconic(Handle())) ShowWindow(Handle(), SW_RESTORE);
  SetForegroundWindow(Handle());
  SetActiveWindow(Handle());
  FocusInside();
}

bool Win32FormPeer::UnusedKey(Control& control, const KeyStroke& key) {
  const bool plain = !key.control && !key.alt;
  if (plain && key.name == KeyName::Tab) {
    Control* const next = NextInTabOrder(form_, &control, !key.shift);
    if (next) next->SetFocus();
    return next != nullptr;
  }
  const bool forward = key.name == KeyName::Down || key.name == KeyName::Right;
  const bool arrow = forward || key.name == KeyName::Up || key.name == KeyName::Left;
  if (auto* option = dynamic_cast<OptionButton*>(&control); option && plain && arrow) {
    OptionButton* const next = NextOption(*option, forward);
    if (!next) return false;
    next->SetFocus();
    next->UserClick();
    return true;
  }
  return form_.UserKey(key);
}

bool Win32FormPeer::UseMnemonic(char16_t character) {
  Element* const marked = WithMnemonic(form_, character);
  if (!marked) return false;
  if (auto* menu = dynamic_cast<Menu*>(marked)) {
    menus_.Open(*menu);
    return true;
  }
  auto& control = dynamic_cast<Control&>(*marked);
  const std::shared_ptr<Window> kept = window_;
  if (Control* target = FocusFor(form_, control)) target->SetFocus();
  if (kept->HasListener() && control.TakesFocus()) control.UserClick();
  return true;
}

void Win32FormPeer::Used() {
  form_.LeaveMenuBar();
  form_.UserActivate();
}

std::vector<std::string> Win32FormPeer::Differences() const {
  DifferenceList differences;
  Compare(differences);
  menus_.Tree().Compare(differences);
  for (const auto& [control, peer] : controls_) peer->Compare(differences);
  return differences.Lines();
}

void Win32FormPeer::Compare(DifferenceList& differences) const {
  const auto check = [&](const char* member, bool same) { differences.Check(form_, member, same); };
  check("Visible", Has(Handle(), GWL_STYLE, WS_VISIBLE) == form_.Visible());
  check("Caption", TextOf(Handle()) == form_.Caption());
  check("BackColor", content_->Ground() == form_.BackColor());
  if (!form_.Visible()) return;
  RECT client;
  GetClientRect(Handle(), &client);
  const SIZE wanted = WindowGeometry::ClientSize(form_.Bounds(), scale_);
  check("Size", client.right == wanted.cx && client.bottom == wanted.cy);
  check("TopMost", Has(Handle(), GWL_EXSTYLE, WS_EX_TOPMOST) == stacking_.StaysOnTop());
  check("menu bar", Has(menus_.Bar().Handle(), GWL_STYLE, WS_VISIBLE) == form_.HasMenuBar());
}

}  // namespace lumenote

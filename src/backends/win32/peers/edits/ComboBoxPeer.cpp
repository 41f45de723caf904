#include "backends/win32/peers/edits/ComboBoxPeer.h"

#include <algorithm>

#include "backends/win32/assist/Speech.h"
#include "backends/win32/system/NativeText.h"
#include "backends/win32/toolkit/drawing/Gdi.h"
#include "backends/win32/toolkit/input/Keys.h"
#include "base/ScopedFlag.h"
#include "forms/controls/SpokenName.h"

namespace lumenote {
namespace {

constexpr int kLines = 12;  // of the open list

WindowKind KindOf(ComboStyle style) {
  const DWORD kind = style == ComboStyle::Editable ? CBS_DROPDOWN : CBS_DROPDOWNLIST;
  return {L"COMBOBOX", WS_CHILD | WS_CLIPSIBLINGS | WS_VSCROLL | CBS_AUTOHSCROLL | kind};
}

COMBOBOXINFO InfoOf(HWND combo) {
  COMBOBOXINFO info = {};
  info.cbSize = sizeof info;
  GetComboBoxInfo(combo, &info);
  return info;
}

}  // namespace

ComboBoxPeer::ComboBoxPeer(ComboBox& combo, HWND parent, PeerHost& host)
    : ControlPeer(combo, std::make_shared<Window>(parent, KindOf(combo.Style())), host),
      combo_(combo) {
  if (combo.Style() == ComboStyle::ListOnly) return;
  edit_ = std::make_shared<Window>(InfoOf(Handle()).hwndItem);
  edit_->Listener(&listener_);
  editName_.emplace(edit_->Handle());
}

ComboBoxPeer::~ComboBoxPeer() {
  if (edit_) edit_->Listener(nullptr);
}

// A native box is as high as its line wants, and the room that it is given is the open list's too.
void ComboBoxPeer::Place(const RECT& bounds) {
  const SIZE size = SizeOf(bounds);
  const int line = LineHeight();
  SetLineHeight(line);
  RECT shown;
  GetWindowRect(Handle(), &shown);
  SetLineHeight(line + static_cast<int>(size.cy - SizeOf(shown).cy));
  const auto list = kLines * static_cast<int>(Tell(CB_GETITEMHEIGHT)) + 2;
  SetWindowPos(Handle(), nullptr, bounds.left, bounds.top, size.cx, size.cy + list,
               SWP_NOZORDER | SWP_NOACTIVATE);
  if (edit_) CentreEdit();
}

// A native box shows its text at the top of its line.
void ComboBoxPeer::CentreEdit() const {
  const RECT line = InfoOf(Handle()).rcItem;
  const DcScope dc(Handle());
  const SelectScope font(dc.Get(), reinterpret_cast<HFONT>(Tell(WM_GETFONT)));
  TEXTMETRICW metrics;
  GetTextMetricsW(dc.Get(), &metrics);
  const LONG height = std::min(metrics.tmHeight, line.bottom - line.top);
  SetWindowPos(edit_->Handle(), nullptr, line.left, (line.top + line.bottom - height) / 2,
               line.right - line.left, height, SWP_NOZORDER | SWP_NOACTIVATE);
}

int ComboBoxPeer::LineHeight() const {
  return static_cast<int>(Tell(CB_GETITEMHEIGHT, static_cast<WPARAM>(-1)));
}

void ComboBoxPeer::SetLineHeight(int pixels) const {
  Tell(CB_SETITEMHEIGHT, static_cast<WPARAM>(-1), std::max(1, pixels));
}

void ComboBoxPeer::Update(Property property) {
  const ScopedFlag pushing(pushing_);
  ControlPeer::Update(property);
  if (property == Property::Font) ControlPeer::Update(Property::Geometry);
  if (property == Property::List) ShowList();
  if (property == Property::Content) ShowContent();
}

void ComboBoxPeer::ShowName() {
  ControlPeer::ShowName();
  if (editName_) editName_->Name(SpokenNameOf(combo_));
}

void ComboBoxPeer::ShowList() {
  Tell(CB_RESETCONTENT);
  for (const std::u16string& entry : combo_.List()) Tell(CB_ADDSTRING, 0, entry);
  ShowContent();
}

void ComboBoxPeer::ShowContent() {
  const ScopedFlag pushing(pushing_);
  const auto index = static_cast<int>(Tell(CB_GETCURSEL));
  if (index != combo_.ListIndex()) Tell(CB_SETCURSEL, static_cast<WPARAM>(combo_.ListIndex()));
  if (edit_) ShowText(edit_->Handle(), combo_.Text());
}

std::u16string ComboBoxPeer::Entry(int index) const {
  const auto at = static_cast<WPARAM>(index);
  std::u16string text(static_cast<std::size_t>(Tell(CB_GETLBTEXTLEN, at)) + 1, u'\0');
  Tell(CB_GETLBTEXT, at, reinterpret_cast<LPARAM>(text.data()));
  text.pop_back();
  return text;
}

void ComboBoxPeer::Compare(DifferenceList& differences) const {
  ControlPeer::Compare(differences);
  const auto count = static_cast<int>(Tell(CB_GETCOUNT));
  std::vector<std::u16string> shown;
  for (int index = 0; index < count; ++index) shown.push_back(Entry(index));
  differences.Check(combo_, "List", shown == combo_.List());
  if (IsOpen()) return;  // a native box shows what is highlighted
  if (edit_) differences.Check(combo_, "Text", TextOf(edit_->Handle()) == combo_.Text());
  differences.Check(combo_, "ListIndex", Tell(CB_GETCURSEL) == combo_.ListIndex());
}

// Keys that a native box would step through a closed list with.
bool ComboBoxPeer::Opens(const Message& message) const {
  if (message.id != WM_KEYDOWN || IsOpen() || GetKeyState(VK_CONTROL) < 0) return false;
  switch (message.w) {
    case VK_UP:
    case VK_DOWN:
    case VK_PRIOR:
    case VK_NEXT:
      return true;
    case VK_HOME:
    case VK_END:
      return !edit_;
    default:
      return false;
  }
}

// A letter in a list without editing looks for an entry, and opens the list to show it.
std::optional<LRESULT> ComboBoxPeer::Hear(const Message& message) {
  if (message.id == WM_MOUSEWHEEL && !IsOpen()) return 0;
  if (message.id == WM_CHAR && !IsOpen() && message.w > L' ') Open();
  if (!Opens(message)) return ControlPeer::Hear(message);
  Open();
  return 0;
}

std::optional<LRESULT> ComboBoxPeer::HearEdit(const Message& message) {
  if (AsksForSpeech(message))
    return Speak(edit_->Handle(), {SpokenNameOf(combo_), ROLE_SYSTEM_TEXT}, message);
  const bool isKey = message.id == WM_KEYDOWN || message.id == WM_SYSKEYDOWN ||
                     message.id == WM_SYSCHAR || message.id == WM_MOUSEWHEEL ||
                     message.id == WM_SETFOCUS;
  return isKey ? Hear(message) : std::nullopt;
}

bool ComboBoxPeer::Wants(const KeyStroke& key) const {
  if (IsOpen()) return key.name != KeyName::Tab;
  if (key.name == KeyName::Function) return key.character == 4;
  return edit_ ? IsEditKey(key) : key.name == KeyName::Character && !key.control && !key.alt;
}

// Opening may change the list, or close the window.
void ComboBoxPeer::Open() {
  Window& window = Native();
  const std::shared_ptr<Window> kept = window.shared_from_this();
  Tell(CB_SHOWDROPDOWN, TRUE);
  if (!window.HasListener()) return;
  const auto entry = std::ranges::find(combo_.List(), combo_.Text());
  const auto index = entry == combo_.List().end() ? -1 : entry - combo_.List().begin();
  SendMessageW(InfoOf(Handle()).hwndList, LB_SETCURSEL, static_cast<WPARAM>(index), 0);
}

std::optional<LRESULT> ComboBoxPeer::HearNotice(const Message& message) {
  if (message.id != WM_COMMAND || pushing_) return std::nullopt;
  switch (HIWORD(message.w)) {
    case CBN_DROPDOWN:
      chosen_ = false;
      combo_.UserDrop();
      return 0;
    case CBN_SELENDOK:
      chosen_ = true;
      return 0;
    case CBN_SELENDCANCEL:
      chosen_ = false;
      return 0;
    case CBN_CLOSEUP:
      Closed();
      return 0;
    case CBN_EDITCHANGE:
      combo_.UserEdited(TextOf(edit_->Handle()), SelectedIn(edit_->Handle()));
      return 0;
    default:
      return std::nullopt;
  }
}

void ComboBoxPeer::Closed() {
  const auto index = static_cast<int>(Tell(CB_GETCURSEL));
  const bool chosen = std::exchange(chosen_, false) && index >= 0;
  ShowContent();
  if (chosen) combo_.UserPick(index);
}

}  // namespace lumenote

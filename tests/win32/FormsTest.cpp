// Forms on native windows, at the system's own keyboard, in a plain message loop.
#include <gtest/gtest.h>

#include "Input.h"
#include "backends/win32/InstalledFonts.h"
#include "backends/win32/Win32Backend.h"
#include "base/Strings.h"
#include "forms/Button.h"
#include "forms/Menu.h"
#include "forms/controls/buttons/CheckBox.h"
#include "forms/controls/buttons/OptionButton.h"
#include "forms/controls/buttons/UpDown.h"
#include "forms/controls/edits/ComboBox.h"
#include "forms/controls/edits/TextBox.h"
#include "forms/controls/labels/Frame.h"
#include "forms/controls/labels/Label.h"
#include "pilot/machine/PilotPlatform.h"
#include "pilot/machine/ReportedFonts.h"
#include "pilot/sandbox/FolderSandbox.h"

// After the system's own header.
#include <dlgs.h>

namespace lumenote {
namespace {

/// Tells what is clicked.
class Fields : public Form {
 public:
  explicit Fields(WindowList& windows) : Form(windows, "Fields", {500, 500, 6000, 6000}, u"Fiche") {
    for (Control* control : std::initializer_list<Control*>{&bold, &one, &two, &accept, &cancel})
      control->Click = [this, control] { Tell(control->Name()); };
    for (Menu* menu : {&cut, &inner, &gras, &para})
      menu->Click = [this, menu] { Tell(menu->Name()); };
    list.Click = [this] { Tell("list=" + std::to_string(list.ListIndex())); };
    list.List({u"un", u"deux", u"trois"});
    spin.Change = [this] { Tell("spin=" + std::to_string(spin.Value())); };
    DefaultButton(&accept);
    CancelButton(&cancel);
  }

  void Tell(const std::string& what) { told += (told.empty() ? "" : " ") + what; }

  Label title{*this, "title", {100, 100, 900, 300}, u"&Nom"};
  TextBox name{*this, "name", {1000, 100, 2000, 300}, u"abc"};
  CheckBox bold{*this, "bold", {100, 500, 2000, 300}, u"&Gras"};
  Frame frame{*this, "frame", {100, 900, 3000, 1200}, u"&Style"};
  OptionButton one{frame, "one", {100, 300, 1000, 300}, u"&Un"};
  OptionButton two{frame, "two", {100, 700, 1000, 300}, u"&Deux"};
  ComboBox list{*this, "list", {100, 2300, 2000, 315}};
  UpDown spin{*this, "spin", {2500, 2300, 255, 300}, 0, 9, 5};
  Button accept{*this, "accept", {100, 3000, 1500, 400}, u"&Valider"};
  Button cancel{*this, "cancel", {1700, 3000, 1500, 400}, u"&Annuler"};
  Menu edit{*this, "edit", u"Edition"};
  Menu cut{edit, "cut", u"Couper"};
  Menu more{edit, "more", u"Autres"};
  Menu inner{more, "inner", u"Coller"};
  Menu gras{*this, "gras", u"G"};
  Menu format{*this, "format", u"F&ormat"};
  Menu para{format, "para", u"Paragraphe"};
  std::string told;
};

class FormsTest : public testing::Test {
 protected:
  FormsTest() {
    form.Show();
    Pump();
  }
  ~FormsTest() override { form.Unload(); }

  Win32FormPeer& Peer() const { return *backend.PeerOf(form); }
  HWND WindowOf(const Control& control) const { return Peer().PeerOf(control)->Native().Handle(); }
  HWND Bar() const { return FindWindowExW(Peer().Handle(), nullptr, L"LumenoteMenuBar", nullptr); }
  /// The visible windows inside the form's.
  std::vector<HWND> Parts() const {
    std::vector<HWND> parts;
    EnumChildWindows(
        Peer().Handle(),
        [](HWND part, LPARAM found) -> BOOL {
          if (IsWindowVisible(part)) reinterpret_cast<std::vector<HWND>*>(found)->push_back(part);
          return TRUE;
        },
        reinterpret_cast<LPARAM>(&parts));
    return parts;
  }
  void Reset() {
    form.name.SetFocus();
    Pump();
    form.told.clear();
  }
  /// Which push button looks as the one that Return clicks.
  std::string Default() const {
    std::string names;
    for (const Button* button : {&form.accept, &form.cancel})
      if ((GetWindowLongW(WindowOf(*button), GWL_STYLE) & BS_TYPEMASK) == BS_DEFPUSHBUTTON)
        names += button->Name();
    return names;
  }

  FolderSandbox sandbox;
  Win32Backend backend;
  ReportedFonts fonts;
  PilotPlatform machine{sandbox, backend, fonts};
  WindowList windows{machine};
  Fields form{windows};
};

using Keys = std::vector<std::initializer_list<WORD>>;

TEST_F(FormsTest, KeysMoveChooseAndClick) {
  struct Row {
    Keys keys;
    const char* told;
    const char* focus;
    const char* shownAsDefault = "accept";
  };
  const Row rows[] = {
      {{{VK_TAB}}, "", "bold"},
      {{{VK_TAB}, {VK_SHIFT, VK_TAB}}, "", "name"},
      {{{VK_TAB}, {VK_SPACE}}, "bold", "bold"},
      {{{VK_TAB}, {VK_TAB}, {VK_DOWN}}, "two", "two"},
      {{{VK_SHIFT, VK_TAB}}, "", "cancel", "cancel"},
      {{{VK_SHIFT, VK_TAB}, {VK_RETURN}}, "cancel", "cancel", "cancel"},
      {{{VK_RETURN}}, "accept", "name"},
      {{{VK_ESCAPE}}, "cancel", "name"},
      {{{VK_MENU, 'G'}}, "bold", "bold"},
      {{{VK_MENU, 'V'}}, "accept", "accept"},
      {{{VK_MENU, 'V'}, {VK_MENU, 'N'}}, "accept", "name"},
      {{{VK_MENU, 'S'}}, "", "one"},
      {{{VK_MENU, 'X'}}, "", "name"},
  };
  for (const Row& row : rows) {
    Reset();
    for (const auto& keys : row.keys) {
      Press(keys);
      Pump();
    }
    EXPECT_EQ(form.told, row.told) << row.focus;
    ASSERT_TRUE(form.ActiveControl());
    EXPECT_EQ(form.ActiveControl()->Name(), row.focus) << row.told;
    EXPECT_EQ(GetFocus(), Peer().PeerOf(*form.ActiveControl())->FocusTarget()) << row.focus;
    EXPECT_EQ(Default(), row.shownAsDefault) << row.focus;
  }
  EXPECT_EQ(Peer().Differences(), std::vector<std::string>());
  form.one.SetFocus();
  const HWND other = CreateWindowExW(0, L"STATIC", L"", WS_POPUP | WS_VISIBLE, 0, 0, 9, 9, nullptr,
                                     nullptr, nullptr, nullptr);
  for (const HWND window : {other, Peer().Handle()}) SetActiveWindow(window);
  EXPECT_EQ(GetFocus(), WindowOf(form.one));
  DestroyWindow(other);
}

TEST_F(FormsTest, OnlyAChoiceFromTheOpenListIsOne) {
  const HWND list = WindowOf(form.list);
  Reset();
  form.list.SetFocus();
  const HWND edit = GetFocus();
  for (const HWND window : {list, edit})
    SendMessageW(window, WM_MOUSEWHEEL, MAKEWPARAM(0, static_cast<WORD>(-WHEEL_DELTA)), 0);
  SendMessageW(edit, WM_CHAR, 'd', 1);
  Press({VK_DOWN});
  Pump();
  EXPECT_TRUE(SendMessageW(list, CB_GETDROPPEDSTATE, 0, 0));
  Press({VK_ESCAPE});
  Pump();
  Press({VK_TAB});
  Pump();
  EXPECT_EQ(form.told, "");
  form.list.Text(u"un");
  Reset();
  form.list.SetFocus();
  for (const WORD key : {VK_DOWN, VK_DOWN, VK_RETURN}) {
    Press({key});
    Pump();
  }
  EXPECT_EQ(form.told, "list=1");
  EXPECT_FALSE(SendMessageW(list, CB_GETDROPPEDSTATE, 0, 0));
}

TEST_F(FormsTest, ASpinnerTurnsByItsArrowsAndItsKeys) {
  const HWND spin = WindowOf(form.spin);
  RECT area;
  GetClientRect(spin, &area);
  Reset();
  for (const LONG y : {area.bottom / 4, area.bottom * 3 / 4}) {
    PostMessageW(spin, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(area.right / 2, y));
    PostMessageW(spin, WM_LBUTTONUP, 0, MAKELPARAM(area.right / 2, y));
    Pump();
  }
  EXPECT_EQ(form.told, "spin=6 spin=5");
}

TEST_F(FormsTest, ArrowsLeadFromOneMenuOfTheBarToTheNext) {
  struct Row {
    std::vector<WORD> keys;
    const char* chosen;
  };
  const Row rows[] = {
      {{VK_DOWN, VK_RETURN}, "cut"},
      {{VK_DOWN, VK_DOWN, VK_RIGHT, VK_RETURN}, "inner"},
      {{VK_DOWN, VK_DOWN, VK_RIGHT, VK_LEFT, VK_UP, VK_RETURN}, "cut"},
      {{VK_LEFT, VK_DOWN, VK_RETURN}, "para"},
      {{VK_LEFT, VK_RIGHT, VK_DOWN, VK_RETURN}, "cut"},
      {{VK_RIGHT, VK_RETURN}, "gras"},
      {{VK_RIGHT, VK_RIGHT, VK_DOWN, VK_DOWN, VK_RETURN}, "para"},
      {{VK_ESCAPE, VK_RETURN}, "accept"},
  };
  for (const Row& row : rows) {
    Reset();
    PostMessageW(Bar(), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(8, 8));
    for (const WORD key : row.keys) Press({key});
    Pump();
    EXPECT_EQ(form.told, row.chosen) << row.keys.size();
    EXPECT_EQ(GetFocus(), WindowOf(form.name)) << row.chosen;
  }
  Reset();
  for (const WORD key : {VK_DOWN, VK_RETURN}) Press({key});
  form.PopUp(form.edit, form.name, {100, 100});
  EXPECT_EQ(form.told, "cut");
  Reset();
  for (const WORD key : {VK_F10, VK_RIGHT, VK_RIGHT, VK_DOWN, VK_DOWN, VK_RETURN}) Press({key});
  Pump();
  EXPECT_EQ(form.told, "para");
  Reset();
  for (const WORD key : {WORD{VK_MENU}, WORD{'O'}, WORD{VK_DOWN}, WORD{VK_RETURN}}) Press({key});
  Pump();
  EXPECT_EQ(form.told, "para");
}

TEST_F(FormsTest, WithTheKeyboardTheBarSaysWhatIsLit) {
  const auto press = [](WORD key) {
    Press({key});
    Pump();
  };
  Reset();
  press(VK_F10);
  EXPECT_EQ(TextOf(Bar()), u"Edition");
  press(VK_LEFT);
  EXPECT_EQ(TextOf(Bar()), u"Format");
  form.gras.Enabled(false);
  EXPECT_EQ(TextOf(Bar()), u"Format");
  form.format.Visible(false);
  press(VK_ESCAPE);
  EXPECT_EQ(GetFocus(), WindowOf(form.name));
  for (Menu* menu : {&form.edit, &form.gras}) menu->Visible(false);
  for (const WORD key : {VK_F10, VK_MENU}) press(key);
  EXPECT_EQ(GetFocus(), WindowOf(form.name));
}

TEST_F(FormsTest, APointerAtRestLeavesTheMenuToTheArrows) {
  Reset();
  RECT bar;
  GetWindowRect(Bar(), &bar);
  SetCursorPos(bar.left + 8, bar.top + 8);
  Pump();
  const auto rests = [&] { PostMessageW(Bar(), WM_MOUSEMOVE, 0, MAKELPARAM(8, 8)); };
  for (const WORD key : {VK_F10, VK_LEFT, VK_DOWN, VK_DOWN, VK_RETURN}) {
    Press({key});
    rests();
  }
  Pump();
  EXPECT_EQ(form.told, "para");
}

TEST_F(FormsTest, AModalWindowKeepsTheHostsOwnLocksAndTimers) {
  const HWND host = CreateWindowExW(0, L"STATIC", L"Hôte", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0,
                                    100, 100, nullptr, nullptr, nullptr, nullptr);
  for (const bool lockedByHost : {false, true}) {
    EnableWindow(host, !lockedByHost);
    Fields dialog(windows);
    int ticks = 0;
    bool locked = false;
    Meanwhile host_timer([&] {
      locked = !IsWindowEnabled(host) && !IsWindowEnabled(Peer().Handle());
      if (++ticks == 5) PostMessageW(backend.PeerOf(dialog)->Handle(), WM_SYSCOMMAND, SC_CLOSE, 0);
      return ticks == 5;
    });
    dialog.ShowModal();
    EXPECT_TRUE(locked);
    EXPECT_EQ(ticks, 5);
    EXPECT_EQ(IsWindowEnabled(host), !lockedByHost);
    EXPECT_TRUE(IsWindowEnabled(Peer().Handle()));
  }
  DestroyWindow(host);
}

TEST_F(FormsTest, AQuitIsPassedOnFromEveryLoop) {
  const std::function<void()> loops[] = {
      [&] { form.ShowModal(); },
      [&] { EXPECT_EQ(form.Ask({.text = u"?", .title = u"Boîte"}), MessageBox::Answer::Ok); },
      [&] { backend.ChooseFont({}, &form); },
  };
  for (const auto& loop : loops) {
    form.Show();
    bool asked = false;
    Meanwhile quits([&] {
      if (std::exchange(asked, true)) return Answers(u"Boîte", IDOK)();
      PostQuitMessage(7);
      return false;
    });
    loop();
    MSG message = {};
    EXPECT_TRUE(PeekMessageW(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
    EXPECT_EQ(message.wParam, 7u);
  }
}

TEST_F(FormsTest, BoxesAndTheFontDialogAreTheSystems) {
  using Answer = MessageBox::Answer;
  const auto ask = [&](int button, MessageBox::Buttons buttons) {
    Meanwhile user(Answers(u"Attention", button));
    return form.Ask({.text = u"Voulez-vous ?", .title = u"Attention", .buttons = buttons});
  };
  EXPECT_EQ(ask(IDYES, MessageBox::Buttons::YesNo), Answer::Yes);
  EXPECT_EQ(ask(IDNO, MessageBox::Buttons::YesNo), Answer::No);
  EXPECT_EQ(ask(IDOK, MessageBox::Buttons::Ok), Answer::Ok);
  const auto pick = [](HWND dialog, int box, int entry) {
    const HWND list = GetDlgItem(dialog, box);
    SendMessageW(list, CB_SETCURSEL, static_cast<WPARAM>(entry), 0);
    SendMessageW(dialog, WM_COMMAND, MAKEWPARAM(box, CBN_SELCHANGE),
                 reinterpret_cast<LPARAM>(list));
    wchar_t text[99] = {};
    SendMessageW(list, CB_GETLBTEXT, static_cast<WPARAM>(entry), reinterpret_cast<LPARAM>(text));
    return std::u16string(Utf16(text));
  };
  for (const auto& [button, choosesFace] :
       {std::pair{IDOK, false}, {IDOK, true}, {IDCANCEL, true}}) {
    std::u16string size, face;
    Meanwhile user([&, opened = false]() mutable {
      const HWND dialog = GetLastActivePopup(Peer().Handle());
      if (dialog == Peer().Handle()) return opened;
      if (!std::exchange(opened, true)) {
        if (choosesFace) face = pick(dialog, cmb1, 2);
        size = pick(dialog, cmb3, 3);
        PostMessageW(GetDlgItem(dialog, button), BM_CLICK, 0, 0);
      }
      return false;
    });
    FontChoice shown;
    shown.name = u"Absente";
    shown.size = 12.0F;
    const auto chosen = backend.ChooseFont(shown, &form);
    ASSERT_EQ(chosen.has_value(), button == IDOK);
    if (!chosen) continue;
    EXPECT_EQ(chosen->size, std::stof(ToUtf8(size)));
    EXPECT_EQ(chosen->name, choosesFace ? std::optional(face) : std::nullopt);
  }
  EXPECT_TRUE(IsWindowEnabled(Peer().Handle()));
}

TEST_F(FormsTest, AnotherResolutionLaysTheWindowOutAnew) {
  RECT before;
  GetClientRect(Peer().Handle(), &before);
  for (const int dpi : {144, 96}) {
    const RECT suggested = {40, 50, 700, 700};
    SendMessageW(Peer().Handle(), WM_DPICHANGED, MAKEWPARAM(dpi, dpi),
                 reinterpret_cast<LPARAM>(&suggested));
    RECT client, name, outer;
    GetClientRect(Peer().Handle(), &client);
    GetClientRect(WindowOf(form.accept), &name);
    GetWindowRect(Peer().Handle(), &outer);
    EXPECT_EQ(outer.left, 40);
    EXPECT_EQ(client.right, before.right * dpi / 96);
    EXPECT_EQ(name.right, 100 * dpi / 96);
    EXPECT_EQ(Peer().Differences(), std::vector<std::string>());
  }
  EXPECT_EQ(form.Width(), 6000);
}

TEST_F(FormsTest, TheGroundFollowsTheSystemsColours) {
  const HWND label = WindowOf(form.title);
  const int face = COLOR_BTNFACE;
  const COLORREF before = GetSysColor(face);
  for (const COLORREF colour : {COLORREF{RGB(10, 20, 30)}, before}) {
    SetSysColors(1, &face, &colour);
    Pump();
    const DcScope dc(label);
    const LRESULT brush =
        SendMessageW(GetParent(label), WM_CTLCOLORSTATIC, reinterpret_cast<WPARAM>(dc.Get()),
                     reinterpret_cast<LPARAM>(label));
    LOGBRUSH ground = {};
    GetObjectW(reinterpret_cast<HGDIOBJ>(brush), sizeof ground, &ground);
    EXPECT_EQ(ground.lbColor, colour);
    EXPECT_EQ(GetBkColor(dc.Get()), colour);
  }
}

TEST_F(FormsTest, WhateverTellsOfNewColoursRepaintsEveryWindow) {
  for (const UINT message : {WM_SYSCOLORCHANGE, WM_SETTINGCHANGE, WM_THEMECHANGED}) {
    Pump();
    for (HWND part : Parts()) UpdateWindow(part);
    SendMessageW(Peer().Handle(), message, 0, 0);
    for (HWND part : Parts()) {
      wchar_t kind[99] = {};
      GetClassNameW(part, kind, 99);
      EXPECT_TRUE(GetUpdateRect(part, nullptr, FALSE)) << message << ToUtf8(Utf16(kind));
    }
  }
}

TEST_F(FormsTest, ALockedBoxKeepsItsGround) {
  form.name.Locked(true);
  const HWND box = WindowOf(form.name);
  const DcScope dc(box);
  const auto brush = reinterpret_cast<HBRUSH>(SendMessageW(GetParent(box), WM_CTLCOLORSTATIC,
                                                           reinterpret_cast<WPARAM>(dc.Get()),
                                                           reinterpret_cast<LPARAM>(box)));
  EXPECT_EQ(brush, GetSysColorBrush(COLOR_WINDOW));
}

TEST_F(FormsTest, ControlsHaveVisualStylesWhateverTheHostAsksFor) {
  const auto library = [](HWND window) {
    wchar_t path[MAX_PATH] = {};
    HMODULE module = nullptr;
    GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS,
                       reinterpret_cast<LPCWSTR>(GetClassLongPtrW(window, GCLP_WNDPROC)), &module);
    GetModuleFileNameW(module, path, MAX_PATH);
    return std::wstring(path);
  };
  const HWND plain =
      CreateWindowExW(0, L"BUTTON", L"", WS_POPUP, 0, 0, 9, 9, nullptr, nullptr, nullptr, nullptr);
  EXPECT_NE(library(WindowOf(form.accept)), library(plain));
  DestroyWindow(plain);
}

}  // namespace
}  // namespace lumenote

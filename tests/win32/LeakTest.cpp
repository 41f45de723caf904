// What editors leave behind, with their dialogs and menus.
#include <functional>
#include <gtest/gtest.h>
#include <iostream>
#include <sstream>

#include "backends/win32/Win32Backend.h"
#include "backends/win32/Win32UserActs.h"
#include "backends/win32/toolkit/drawing/Gdi.h"
#include "pilot/RunPilot.h"
#include "pilot/sandbox/FolderSandbox.h"

namespace lumenote {
namespace {

constexpr const char* kShown = R"(host pCouleurFen "255"
host pStrOrchm "{\\rtf1\\ansi Abies \\b alba\\b0\\par Picea}"
show
type Co_Rtf.Bx_RTF "sapin\r\n"
open Co_Rtf.mnuPop
answer "Yes"
host pStrOrchm
expect-like sapin
)";

// Every window, every kind of menu, a box, edits with undo, a font.
constexpr const char* kDialogs = R"(host pCouleurFen "255"
host pStrOrchm "Abies"
show
type Co_Rtf.Bx_RTF "sapin"
mouse Co_Rtf.Bx_RTF up 2 300 300
click Co_Rtf.mnuFmtActBarMenu
open Co_Rtf.mnuFmt
font-answer {"name":"Arial","bold":true}
click Co_Rtf.mnuFmtPolice
click Co_Rtf.mnuFmtActRègle
click Co_Rtf.mnuFmtParagraph
click Co_Paragraph.opnAlign(1)
click Co_Rtf.mnuEdtTrouver
type Co_Trouver.cboFind "Picea"
close Co_Trouver
click Co_Rtf.mnuEdtSymboles
close Co_Symbols
select Co_Rtf.Bx_RTF 0 5
click Co_Rtf.mnuPopOcrApprendre
close Co_Apprendre
key Co_Rtf.Bx_RTF Ctrl+Z
answer "Yes"
close Co_Rtf
)";

/// What is held on this thread's behalf.
struct Held {
  int drawing = GdiCount::Alive();
  int inUse = CodeInUse::Count();
  int windows = 0;
  int menus = 0;

  Held() {
    const auto count = [](HWND, LPARAM number) -> BOOL {
      ++*reinterpret_cast<int*>(number);
      return TRUE;
    };
    EnumThreadWindows(GetCurrentThreadId(), count, reinterpret_cast<LPARAM>(&windows));
    for (std::uintptr_t handle = 0; handle < 0x10000; ++handle)
      menus += IsMenu(reinterpret_cast<HMENU>(handle)) != FALSE;
  }
  bool operator==(const Held&) const = default;
};

void PrintTo(const Held& held, std::ostream* out) {
  *out << held.drawing << " drawing objects, " << held.inUse << " objects in use, " << held.windows
       << " windows, " << held.menus << " menus";
}

void RunScript(const char* text) {
  FolderSandbox sandbox;
  Win32Backend backend;
  Win32UserActs user(backend);
  std::istringstream script(text);
  std::ostringstream out;
  EXPECT_EQ(RunPilot({script, out, std::cerr, sandbox, backend, user}), 0) << out.str();
}

/// After the first round, which may fill caches.
std::pair<Held, Held> Rounds(int rounds, const std::function<void()>& round) {
  round();
  const Held before;
  for (int i = 0; i < rounds; ++i) round();
  return {before, Held()};
}

TEST(LeakTest, AHundredEditorsLeaveNothing) {
  const auto [before, after] = Rounds(100, [] { RunScript(kShown); });
  EXPECT_EQ(before, after);
}

TEST(LeakTest, DialogsLeaveNothing) {
  const auto [before, after] = Rounds(3, [] { RunScript(kDialogs); });
  EXPECT_EQ(before, after);
}

TEST(LeakTest, EachKindOfLeakIsSeen) {
  const std::function<void()> leaks[] = {
      [] { new GdiObject<HBRUSH>(CreateSolidBrush(RGB(1, 2, 3))); },
      [] { new auto(std::make_shared<Window>(HWND_MESSAGE, WindowKind{L"STATIC"})); },
      [] { CreateWindowExW(0, L"STATIC", L"", 0, 0, 0, 1, 1, nullptr, nullptr, nullptr, nullptr); },
      [] { CreatePopupMenu(); }};
  for (const auto& leak : leaks) {
    const auto [before, after] = Rounds(1, leak);
    EXPECT_NE(before, after);
  }
}

}  // namespace
}  // namespace lumenote

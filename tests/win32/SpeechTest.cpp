// What assistive programs learn of every window of the editor, part by part.
#include <algorithm>

#include "backends/win32/system/ComObject.h"
#include "base/Strings.h"
#include "win32/EditorBench.h"

// After the system's own header.
#include <oleacc.h>

namespace lumenote {
namespace {

using Part = std::pair<std::string, LONG>;

class SpeechTest : public EditorTest {
 protected:
  /// The visible windows in one, and that one.
  static std::vector<HWND> WindowsIn(HWND window) {
    std::vector<HWND> found = {window};
    EnumChildWindows(
        window,
        [](HWND part, LPARAM all) -> BOOL {
          if (IsWindowVisible(part)) reinterpret_cast<std::vector<HWND>*>(all)->push_back(part);
          return TRUE;
        },
        reinterpret_cast<LPARAM>(&found));
    return found;
  }
  static ComOwner<IAccessible> SpokenBy(HWND window) {
    void* found = nullptr;
    EXPECT_EQ(AccessibleObjectFromWindow(window, static_cast<DWORD>(OBJID_CLIENT),
                                         __uuidof(IAccessible), &found),
              S_OK);
    return ComOwner<IAccessible>(static_cast<IAccessible*>(found));
  }
  static Part PartOf(IAccessible& spoken) {
    VARIANT role = {};
    EXPECT_EQ(spoken.get_accRole(kSelf, &role), S_OK);
    BSTR told = nullptr;
    spoken.get_accName(kSelf, &told);
    const std::string name = ToUtf8(Utf16({told, SysStringLen(told)}));
    SysFreeString(told);
    return {name, role.lVal};
  }
  static bool HasFocus(IAccessible& spoken) {
    VARIANT state = {};
    EXPECT_EQ(spoken.get_accState(kSelf, &state), S_OK);
    return (state.lVal & STATE_SYSTEM_FOCUSED) != 0;
  }

  /// Each part has a name, but for grounds, frames and empty texts; one has the keyboard; those of
  /// `wanted` are among them.
  static void Check(HWND window, const std::vector<Part>& wanted) {
    std::vector<Part> parts;
    int focused = 0;
    for (const HWND part : WindowsIn(window)) {
      const ComOwner<IAccessible> spoken = SpokenBy(part);
      const auto& [name, role] = parts.emplace_back(PartOf(*spoken));
      const bool mayBeNameless = role == ROLE_SYSTEM_CLIENT || role == ROLE_SYSTEM_GROUPING ||
                                 role == ROLE_SYSTEM_STATICTEXT;
      EXPECT_TRUE(mayBeNameless || !name.empty()) << role;
      focused += HasFocus(*spoken);
    }
    EXPECT_EQ(focused, 1) << ToUtf8(TextOf(window));
    for (const Part& part : wanted)
      EXPECT_NE(std::ranges::find(parts, part), parts.end()) << part.first << ' ' << part.second;
  }

  static constexpr VARIANT kSelf = {{{VT_I4, 0, 0, 0, {CHILDID_SELF}}}};
};

TEST_F(SpeechTest, EveryWindowIsNamedPartByPart) {
  struct Row {
    Menu& entry;
    std::vector<Part> parts;
  };
  Open();
  Editor()->Document().SelLength(3);
  Check(Handle(),
        {{"Note", ROLE_SYSTEM_TEXT}, {"Menus, Règle, Paragraphe", ROLE_SYSTEM_PUSHBUTTON}});
  Row rows[] = {{Editor()->Bar.mnuEdtTrouver,
                 {{"Trouver / Remplacer", ROLE_SYSTEM_DIALOG},
                  {"Trouver:", ROLE_SYSTEM_STATICTEXT},
                  {"Trouver:", ROLE_SYSTEM_COMBOBOX},
                  {"Trouver:", ROLE_SYSTEM_TEXT},
                  {"Sensible à la casse", ROLE_SYSTEM_CHECKBUTTON},
                  {"Annuler", ROLE_SYSTEM_PUSHBUTTON}}},
                {Editor()->Bar.mnuEdtSymboles,
                 {{"Choisir la fonte", ROLE_SYSTEM_COMBOBOX},
                  {"Symboles", ROLE_SYSTEM_GROUPING},
                  {"!", ROLE_SYSTEM_STATICTEXT},
                  {"Défilement des symboles", ROLE_SYSTEM_SCROLLBAR},
                  {"Symboles sélectionnés", ROLE_SYSTEM_TEXT}}},
                {Editor()->Pop.mnuPopOcrApprendre,
                 {{"Texte erroné", ROLE_SYSTEM_TEXT}, {"Faire corrections", ROLE_SYSTEM_TEXT}}},
                {Editor()->Bar.mnuFmtParagraph,
                 {{"Indent Gauche", ROLE_SYSTEM_TEXT},
                  {"Indent Gauche", ROLE_SYSTEM_SPINBUTTON},
                  {"Appliquer Style", ROLE_SYSTEM_COMBOBOX},
                  {"Alignement", ROLE_SYSTEM_GROUPING},
                  {"Centre", ROLE_SYSTEM_RADIOBUTTON},
                  {"Taille", ROLE_SYSTEM_TEXT}}}};
  for (const Row& row : rows) {
    HWND window = nullptr;
    const Meanwhile user([&] {
      window = GetActiveWindow();
      if (!window || window == Handle()) return false;
      Check(window, row.parts);
      PostMessageW(window, WM_CLOSE, 0, 0);
      return true;
    });
    row.entry.UserClick();
    while (!window || window == Handle() || IsWindowVisible(window)) {
      MSG message;
      GetMessageW(&message, nullptr, 0, 0);
      DispatchMessageW(&message);
    }
  }
}

}  // namespace
}  // namespace lumenote

#include "backends/win32/peers/labels/StatusBarPeer.h"

#include <algorithm>
#include <commctrl.h>

#include "backends/win32/toolkit/NativeText.h"

namespace lumenote {
namespace {

constexpr double kPadding = 75;      // twips, at each side of a panel's text
constexpr double kLeastWidth = 360;  // twips

}  // namespace

StatusBarPeer::StatusBarPeer(StatusBar& bar, HWND parent, PeerHost& host)
    : ControlPeer(bar,
                  std::make_shared<Window>(
                      parent, WindowKind{STATUSCLASSNAMEW, WS_CHILD | WS_CLIPSIBLINGS |
                                                               CCS_NORESIZE | CCS_NOPARENTALIGN}),
                  host),
      bar_(bar) {}

void StatusBarPeer::Update(Property property) {
  ControlPeer::Update(property);
  if (property == Property::Panels || property == Property::Font) ShowPanels();
}

std::vector<int> StatusBarPeer::Edges() const {
  const Scale scale = Host().Resolution();
  const DcScope dc(Handle());
  const SelectScope font(dc.Get(), reinterpret_cast<HFONT>(Tell(WM_GETFONT)));
  std::vector<int> edges;
  int right = 0;
  for (int number = 1; number <= bar_.Count(); ++number) {
    const std::u16string& text = bar_.Panel(number);
    SIZE size = {};
    GetTextExtentPoint32W(dc.Get(), Wide(text), static_cast<int>(text.size()), &size);
    const int wanted = size.cx + 2 * scale.Pixels(kPadding);
    right += std::max(wanted, scale.Pixels(kLeastWidth));
    edges.push_back(right);
  }
  return edges;
}

void StatusBarPeer::ShowPanels() {
  std::vector<int> edges = Edges();
  Tell(SB_SETPARTS, edges.size(), reinterpret_cast<LPARAM>(edges.data()));
  for (int number = 1; number <= bar_.Count(); ++number)
    Tell(SB_SETTEXTW, static_cast<WPARAM>(number - 1), bar_.Panel(number));
}

std::u16string StatusBarPeer::Shown(int number) const {
  const auto part = static_cast<WPARAM>(number - 1);
  std::u16string text(LOWORD(Tell(SB_GETTEXTLENGTHW, part)) + 1u, u'\0');
  Tell(SB_GETTEXTW, part, reinterpret_cast<LPARAM>(text.data()));
  text.pop_back();
  return text;
}

void StatusBarPeer::Compare(DifferenceList& differences) const {
  ControlPeer::Compare(differences);
  for (int number = 1; number <= bar_.Count(); ++number)
    differences.Check(bar_, "Panels", Shown(number) == bar_.Panel(number));
}

}  // namespace lumenote

#include "backends/win32/peers/labels/StatusBarPeer.h"

#include <algorithm>
#include <commctrl.h>
#include <windowsx.h>

#include "backends/win32/system/NativeText.h"
#include "backends/win32/toolkit/drawing/Colours.h"

namespace lumenote {
namespace {

constexpr double kGripTwips = 240;

/// On the ground of the bar. Who wants a few strong colours gets no pale one.
COLORREF InkOf(StatusSign sign) {
  const COLORREF ink = GetSysColor(COLOR_BTNTEXT);
  return HighContrast() ? ink : Mixed(ink, GetSysColor(COLOR_BTNFACE), PalenessOf(sign));
}

}  // namespace

StatusBarPeer::StatusBarPeer(StatusBar& bar, HWND parent, PeerHost& host)
    : ControlPeer(
          bar,
          std::make_shared<Window>(
              parent, WindowKind{STATUSCLASSNAMEW, WS_CHILD | WS_CLIPSIBLINGS | CCS_NORESIZE |
                                                       CCS_NOPARENTALIGN | SBARS_SIZEGRIP}),
          host),
      bar_(bar) {}

void StatusBarPeer::Update(Property property) {
  ControlPeer::Update(property);
  if (property == Property::Panels || property == Property::Font) ShowPanels();
  if (property == Property::Sign) ShowSign();
  ShowName();
}

void StatusBarPeer::HearHandled(const Message& message) {
  if (message.id == WM_SIZE) ShowPanels();
  if (message.id >= WM_MOUSEFIRST && message.id <= WM_MOUSELAST) {
    tip_.Text(IsOnSign({GET_X_LPARAM(message.l), GET_Y_LPARAM(message.l)}) ? bar_.SignTip() : u"");
    tip_.Relay(message);
  }
  ControlPeer::HearHandled(message);
}

bool StatusBarPeer::IsOnSign(POINT point) const {
  RECT sign = {};
  Tell(SB_GETRECT, bar_.ShownPanels().size() + 1, reinterpret_cast<LPARAM>(&sign));
  return PtInRect(&sign, point) != 0;
}

std::vector<int> StatusBarPeer::Edges() const {
  const Scale scale = Host().Resolution();
  const DcScope dc(Handle());
  const SelectScope font(dc.Get(), reinterpret_cast<HFONT>(Tell(WM_GETFONT)));
  RECT client;
  GetClientRect(Handle(), &client);
  const int sign = static_cast<int>(client.right) - scale.Pixels(kSignTwips + kGripTwips);
  std::vector<int> edges;
  int right = 0;
  for (const std::u16string& text : bar_.ShownPanels()) {
    SIZE size = {};
    GetTextExtentPoint32W(dc.Get(), Wide(text), static_cast<int>(text.size()), &size);
    const int wanted = size.cx + 2 * scale.Pixels(kPanelPadding);
    right += std::max(wanted, scale.Pixels(kLeastPanelWidth));
    edges.push_back(std::clamp(right, 0, std::max(0, sign)));
  }
  edges.push_back(std::max(0, sign));
  edges.push_back(-1);  // to the end
  return edges;
}

void StatusBarPeer::ShowPanels() {
  const std::vector<std::u16string> texts = bar_.ShownPanels();
  std::vector<int> edges = Edges();
  Tell(SB_SETPARTS, edges.size(), reinterpret_cast<LPARAM>(edges.data()));
  for (std::size_t part = 0; part < edges.size(); ++part) {
    const bool panel = part < texts.size();
    Tell(SB_SETTEXTW, panel ? part : part | SBT_NOBORDERS, panel ? texts[part] : u"");
  }
  ShowSign();
}

void StatusBarPeer::ShowSign() {
  const int side = Host().Resolution().Pixels(kSignTwips);
  const std::size_t last = bar_.ShownPanels().size() + 1;
  for (std::size_t part = 0; part < last; ++part) Tell(SB_SETICON, part);
  SignIcon icon = MakeSignIcon(bar_.Sign(), side, InkOf(bar_.Sign()));
  Tell(SB_SETICON, last, reinterpret_cast<LPARAM>(icon.Get()));
  sign_ = std::move(icon);
}

std::u16string StatusBarPeer::Shown(std::size_t part) const {
  std::u16string text(LOWORD(Tell(SB_GETTEXTLENGTHW, part)) + 1u, u'\0');
  Tell(SB_GETTEXTW, part, reinterpret_cast<LPARAM>(text.data()));
  text.pop_back();
  return text;
}

void StatusBarPeer::Compare(DifferenceList& differences) const {
  ControlPeer::Compare(differences);
  const std::vector<std::u16string> texts = bar_.ShownPanels();
  for (std::size_t part = 0; part < texts.size(); ++part)
    differences.Check(bar_, "Panels", Shown(part) == texts[part]);
  const bool drawn = sign_.Get() != nullptr;
  differences.Check(bar_, "Sign", drawn == (bar_.Sign() != StatusSign::None));
}

}  // namespace lumenote

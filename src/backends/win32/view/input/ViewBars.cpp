#include "backends/win32/view/input/ViewBars.h"

#include <algorithm>
#include <cmath>

namespace lumenote {

namespace {

constexpr int kBarlessHeight = 48;  // a lower window gets no scroll bars
constexpr double kMaxRange = 1e9;

/// Leaves the bar alone unless its slider would move, since drawing it costs more than typing.
void Show(HWND window, int bar, double total, double page, double value) {
  SCROLLINFO wanted = {};
  wanted.cbSize = sizeof wanted;
  wanted.fMask = SIF_RANGE | SIF_PAGE | SIF_POS;
  SCROLLINFO now = wanted;
  wanted.nMax = std::max(0, static_cast<int>(std::min(std::ceil(total), kMaxRange)) - 1);
  wanted.nPage = static_cast<UINT>(page);
  wanted.nPos = static_cast<int>(std::lround(std::min(value, kMaxRange)));
  GetScrollInfo(window, bar, &now);
  const bool same = std::abs(1.0 * wanted.nMax - now.nMax) * 2 * page <= now.nMax &&
                    wanted.nPage == now.nPage && wanted.nPos == now.nPos;
  if (!same) SetScrollInfo(window, bar, &wanted, TRUE);
}

int DraggedTo(HWND window, int bar) {
  SCROLLINFO info = {};
  info.cbSize = sizeof info;
  info.fMask = SIF_TRACKPOS;
  GetScrollInfo(window, bar, &info);
  return info.nTrackPos;
}

UINT WheelLines() {
  UINT lines = 3;
  SystemParametersInfoW(SPI_GETWHEELSCROLLLINES, 0, &lines, 0);
  return lines;
}

}  // namespace

void ViewBars::Choose(HWND window, int height) {
  barless_ = height < kBarlessHeight;
  if (barless_) ShowScrollBar(window, SB_BOTH, FALSE);
}

void ViewBars::Sync(HWND window) const {
  if (barless_) return;
  TextPane& pane = view_.Pane();
  const PixelSize size = pane.Size();
  const ScrollModel::Scale scale = pane.Scroll().Read();
  Show(window, SB_VERT, scale.total, size.height, scale.value);
  Show(window, SB_HORZ, size.width + pane.MostRight(), size.width, pane.ScrolledRight());
}

void ViewBars::Down(HWND window, int action) {
  switch (action) {
    case SB_LINEUP:
      return view_.ScrollBySteps(-1);
    case SB_LINEDOWN:
      return view_.ScrollBySteps(1);
    case SB_PAGEUP:
      return view_.ScrollByPages(-1);
    case SB_PAGEDOWN:
      return view_.ScrollByPages(1);
    case SB_TOP:
      return view_.ScrollTo(0);
    case SB_BOTTOM:
      return view_.ScrollTo(kMaxRange);
    case SB_THUMBTRACK:
      return view_.ScrollTo(DraggedTo(window, SB_VERT));
  }
}

void ViewBars::Across(HWND window, int action) {
  const double page = view_.Pane().Size().width / 2;
  switch (action) {
    case SB_LINELEFT:
      return ScrollRight(-NoteView::kScrollStep);
    case SB_LINERIGHT:
      return ScrollRight(NoteView::kScrollStep);
    case SB_PAGELEFT:
      return ScrollRight(-page);
    case SB_PAGERIGHT:
      return ScrollRight(page);
    case SB_THUMBTRACK:
      return view_.ScrollAcrossTo(DraggedTo(window, SB_HORZ));
  }
}

void ViewBars::ScrollRight(double pixels) {
  TextPane& pane = view_.Pane();
  view_.ScrollAcrossTo(std::clamp(pane.ScrolledRight() + pixels, 0.0, pane.MostRight()));
}

void ViewBars::Turn(double notches) {
  const UINT lines = WheelLines();
  if (lines == WHEEL_PAGESCROLL)
    view_.ScrollByPages(-notches);
  else
    view_.ScrollBySteps(-notches * lines);
}

void ViewBars::TurnAcross(double notches) {
  ScrollRight(notches * WheelLines() * NoteView::kScrollStep);
}

}  // namespace lumenote

#include "backends/win32/view/input/ImeRequests.h"

#include <algorithm>
#include <cmath>

#include "backends/win32/text/UniscribeLayouter.h"
#include "view/acts/ViewInput.h"

namespace lumenote {

namespace {

constexpr DWORD kUnit = sizeof(char16_t);

PixelRect CaretOf(NoteView& view) {
  return view.Pane().CaretAt(view.Surface().Caret()).value_or(PixelRect());
}

POINT CornerOf(const PixelRect& box) { return {std::lround(box.left), std::lround(box.top)}; }

LRESULT TellFont(NoteView& view, LOGFONTW& out) {
  auto& layouter = static_cast<UniscribeLayouter&>(view.Pane().Layouter());
  const Document& document = view.Surface().Content();
  out = layouter.styles.Of(document, view.Surface().InsertionFormat()).font->Wanted();
  return TRUE;
}

// Counted in what is composed; without that, only the caret's place is asked for.
LRESULT TellPlace(HWND window, NoteView& view, IMECHARPOSITION& out) {
  const auto composed = view.Pane().ComposedCaretAt(static_cast<int>(out.dwCharPos));
  const PixelRect caret = composed.value_or(CaretOf(view));
  out.pt = CornerOf(caret);
  out.cLineHeight = static_cast<UINT>(std::lround(caret.Height()));
  GetClientRect(window, &out.rcDocument);
  MapWindowPoints(window, nullptr, &out.pt, 1);
  MapWindowPoints(window, nullptr, reinterpret_cast<POINT*>(&out.rcDocument), 2);
  return TRUE;
}

/// The text around the caret with a part of it marked: its size or, if there is room, the text.
LRESULT TellText(const Document& document, Selection around, Selection marked,
                 RECONVERTSTRING* out) {
  const auto length = static_cast<DWORD>(around.Length());
  const DWORD size = sizeof *out + length * kUnit;
  if (!out) return static_cast<LRESULT>(size);
  if (out->dwSize < size) return 0;
  const auto from = static_cast<DWORD>(marked.start - around.start) * kUnit;
  const auto count = static_cast<DWORD>(marked.Length());
  *out = {out->dwSize, 0, length, sizeof *out, count, from, count, from};
  std::ranges::copy(document.Text(around.start, around.end), reinterpret_cast<char16_t*>(out + 1));
  return static_cast<LRESULT>(size);
}

LRESULT Feed(NoteView& view, RECONVERTSTRING* out) {
  const Selection around = ViewInput(view).Surroundings();
  const Selection selected = view.Surface().Selected();
  const auto inside = [&](Position at) { return std::clamp(at, around.start, around.end); };
  return TellText(view.Surface().Content(), around, {inside(selected.start), inside(selected.end)},
                  out);
}

// The result replaces the selection, so an input method has to see all of it.
LRESULT Reconvert(NoteView& view, RECONVERTSTRING* out) {
  const Selection around = ViewInput(view).Surroundings();
  const Selection selected = view.Surface().Selected();
  const bool whole = selected.start >= around.start && selected.end <= around.end;
  return whole && !view.IsLocked() ? Feed(view, out) : 0;
}

/// The input method has chosen the part that it will convert.
LRESULT Confirm(NoteView& view, const RECONVERTSTRING& chosen) {
  const Selection around = ViewInput(view).Surroundings();
  const auto length = static_cast<DWORD>(around.Length());
  const DWORD from = chosen.dwCompStrOffset / kUnit;
  if (view.IsLocked() || from > length || chosen.dwCompStrLen > length - from) return FALSE;
  const Position start = around.start + static_cast<Position>(from);
  view.Select(start, start + static_cast<Position>(chosen.dwCompStrLen));
  return TRUE;
}

}  // namespace

COMPOSITIONFORM CompositionFormOf(const PixelRect& caret) {
  return {CFS_POINT, CornerOf(caret), {}};
}

CANDIDATEFORM CandidateFormOf(const PixelRect& caret) {
  const POINT at = CornerOf(caret);
  return {0, CFS_EXCLUDE, at, {at.x, at.y, std::lround(caret.right), std::lround(caret.bottom)}};
}

LRESULT AnswerRequest(HWND window, NoteView& view, const Message& message) {
  auto* const text = reinterpret_cast<RECONVERTSTRING*>(message.l);
  switch (message.w) {
    case IMR_DOCUMENTFEED:
      return Feed(view, text);
    case IMR_RECONVERTSTRING:
      return Reconvert(view, text);
  }
  if (!message.l) return 0;
  switch (message.w) {
    case IMR_COMPOSITIONWINDOW:
      *reinterpret_cast<COMPOSITIONFORM*>(message.l) = CompositionFormOf(CaretOf(view));
      return TRUE;
    case IMR_CANDIDATEWINDOW:
      *reinterpret_cast<CANDIDATEFORM*>(message.l) = CandidateFormOf(CaretOf(view));
      return TRUE;
    case IMR_COMPOSITIONFONT:
      return TellFont(view, *reinterpret_cast<LOGFONTW*>(message.l));
    case IMR_QUERYCHARPOSITION:
      return TellPlace(window, view, *reinterpret_cast<IMECHARPOSITION*>(message.l));
    case IMR_CONFIRMRECONVERTSTRING:
      return Confirm(view, *text);
  }
  return 0;
}

}  // namespace lumenote

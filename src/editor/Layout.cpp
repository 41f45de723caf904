#include "editor/Layout.h"

#include "base/Numbers.h"
#include "base/RuntimeError.h"
#include "forms/Control.h"

namespace lumenote {

namespace {

constexpr float kLabelMargin = 57;
constexpr float kDecorations = 580;  // caption, borders and status bar
constexpr float kFrameLeft = 80;
constexpr float kFrameTop = 84;
constexpr float kDocumentLeft = 30;
constexpr float kMenuBarHeight = 300;
constexpr float kZoneGap = 10;  // between the document and the label below it

/// A length converted through a 16-bit variable.
float Short(float length) { return ToInt16(double{length}); }

void PlaceAcross(const LayoutParts& p, float width) {
  IgnoringErrors([&] { p.ruler.Width(Short(width - 200)); });
  p.ruler.Left(kDocumentLeft);
  IgnoringErrors([&] { p.frame.Width(Short(width - 2 * kLabelMargin) - 2 * kFrameLeft); });
  IgnoringErrors([&] { p.document.Width(p.frame.Width() - 2 * kDocumentLeft); });
  IgnoringErrors(
      [&] { p.format.Left(p.frame.Width() - 2 * kFrameLeft - p.format.Width() + kLabelMargin); });
  for (Control* zone : p.zones) {
    IgnoringErrors([&] { zone->Width(p.frame.Width() - 2 * kLabelMargin); });
    zone->Left(kLabelMargin);
  }
}

void PlaceDown(const LayoutParts& p, float height, bool menuBar) {
  IgnoringErrors([&] { p.frame.Height(Short(height - kDecorations) - 50 - 2 * kFrameLeft); });
  IgnoringErrors([&] { p.document.Height(p.frame.Height() - 250 - 80); });
  if (menuBar) {
    IgnoringErrors([&] { p.document.Height(p.document.Height() - kMenuBarHeight); });
    IgnoringErrors([&] { p.frame.Height(p.frame.Height() - kMenuBarHeight); });
  }
  p.zones[1]->Top(p.document.Top() + p.document.Height() + kZoneGap);
}

}  // namespace

void Disposer(const LayoutParts& p, float width, float height, bool menuBar) {
  p.frame.Top(kFrameTop);
  p.frame.Left(kFrameLeft);
  p.document.Top(kDocumentTop);
  p.document.Left(kDocumentLeft);
  PlaceAcross(p, width);
  PlaceDown(p, height, menuBar);
}

}  // namespace lumenote

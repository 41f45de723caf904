#include "view/backdrop/BackdropPainter.h"

#include <algorithm>
#include <cmath>

#include "view/layout/CharLook.h"

namespace lumenote {

namespace {

using Style = BorderLine::Style;

constexpr int kWholeShare = 10'000;  // of an area
constexpr int kGridShare = 3'000;    // of the ink in lines that nobody asked for
constexpr int kShadeOnDark = 3'000;  // of a light shade on a dark ground

Colour Mixed(Colour one, Colour other, int share) {
  Colour mixed = 0;
  for (int bits = 0; bits < 24; bits += 8) {
    const int from = static_cast<int>(one >> bits & 0xFF);
    const int to = static_cast<int>(other >> bits & 0xFF);
    mixed |= static_cast<Colour>(from + (to - from) * share / kWholeShare) << bits;
  }
  return mixed;
}

int Grey(Colour colour) {
  const auto channel = [&](int bits) { return static_cast<int>(colour >> bits & 0xFF); };
  return (channel(0) * 11 + channel(8) * 16 + channel(16) * 5) / 32;
}

}  // namespace

PixelRect BackdropPainter::Clipped(const PixelRect& area) const {
  return {std::max(area.left, clip_.left), std::max(area.top, clip_.top),
          std::min(area.right, clip_.right), std::min(area.bottom, clip_.bottom)};
}

void BackdropPainter::Fill(const PixelRect& area, Colour colour) {
  if (const PixelRect seen = Clipped(area); !seen.IsEmpty()) parts.push_back({seen, colour});
}

void BackdropPainter::Line(const PixelRect& area, Colour colour) {
  PixelRect seen = Clipped(area);
  if (seen.IsEmpty()) return;
  const bool across = area.Width() > area.Height();
  (across ? seen.top : seen.left) = across ? area.top : area.left;
  (across ? seen.bottom : seen.right) = across ? area.bottom : area.right;
  parts.push_back({seen, colour, true});
}

// Text of automatic colour stays readable on a shade that the note's author saw under black text.
void BackdropPainter::Shade(const PixelRect& area, const Shading& shading) {
  if (!shading.IsSeen() || colours_.plain) return;
  constexpr Colour kWhite = 0xFFFFFF;
  const bool dark = Grey(colours_.ground) < 128;
  const Colour ground = shading.ground == 0 ? kWhite : ColourOf(head_, shading.ground, kWhite);
  const Colour pattern = shading.pattern == 0 ? 0 : ColourOf(head_, shading.pattern, 0);
  const Colour shade = Mixed(ground, pattern, shading.share);
  if (shade == kWhite) return;
  Fill(area, dark ? Mixed(colours_.ground, shade, kShadeOnDark) : shade);
}

Colour BackdropPainter::InkOf(const BorderLine& line) const {
  if (line.colour == 0 || colours_.plain) return colours_.ink;
  return Readable(ColourOf(head_, line.colour, colours_.ink), colours_.ground);
}

void BackdropPainter::Grid(const PixelRect& area) {
  if (colours_.grid) Line(area, Mixed(colours_.ground, colours_.ink, kGridShare));
}

void BackdropPainter::Across(const BorderLine& line, double left, double right, double top) {
  Strokes(line, {left, top, right, top + Thickness(line)}, true);
}

void BackdropPainter::Down(const BorderLine& line, double top, double bottom, double left) {
  Strokes(line, {left, top, left + Thickness(line), bottom}, false);
}

void BackdropPainter::Strokes(const BorderLine& line, const PixelRect& area, bool across) {
  const Colour ink = InkOf(line);
  const double width = across ? area.Height() : area.Width();
  switch (line.style) {
    case Style::None:
      return;
    case Style::Single:
      return Line(area, ink);
    case Style::Double: {
      PixelRect first = area;
      PixelRect last = area;
      (across ? first.bottom : first.right) -= 2 * width / 3;
      (across ? last.top : last.left) += 2 * width / 3;
      Line(first, ink);
      return Line(last, ink);
    }
    case Style::Dotted:
      return Dashes(area, across, width, ink);
    case Style::Dashed:
      return Dashes(area, across, 4 * width, ink);
  }
}

// Only those that are seen, however long the line is.
void BackdropPainter::Dashes(PixelRect area, bool across, double dash, Colour colour) {
  double& start = across ? area.left : area.top;
  double& stop = across ? area.right : area.bottom;
  const double end = std::min(stop, across ? clip_.right : clip_.bottom);
  const double hidden = (across ? clip_.left : clip_.top) - start;
  if (hidden > 0) start += std::floor(hidden / (2 * dash)) * 2 * dash;
  for (; start < end; start += 2 * dash) {
    stop = std::min(end, start + dash);
    Fill(area, colour);
  }
}

}  // namespace lumenote

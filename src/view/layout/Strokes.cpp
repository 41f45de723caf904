#include "view/layout/Strokes.h"

#include <algorithm>
#include <cmath>

namespace lumenote {

namespace {

constexpr double kDots[] = {1, 2};
constexpr double kDashes[] = {4, 2};
constexpr double kLongDashes[] = {8, 3};
constexpr double kDashDot[] = {4, 2, 1, 2};
constexpr double kDashDotDot[] = {4, 2, 1, 2, 1, 2};

struct NamedStroke {
  Underline kind{};
  Stroke stroke;
};
constexpr NamedStroke kStrokes[] = {
    {Underline::Double, {.lines = 2}},
    {Underline::Dotted, {.dashes = kDots}},
    {Underline::Dash, {.dashes = kDashes}},
    {Underline::DashDot, {.dashes = kDashDot}},
    {Underline::DashDotDot, {.dashes = kDashDotDot}},
    {Underline::Thick, {.weight = 2}},
    {Underline::Wave, {.wave = true}},
    {Underline::DoubleWave, {.lines = 2, .wave = true}},
    {Underline::HeavyWave, {.weight = 2, .wave = true}},
    {Underline::LongDash, {.dashes = kLongDashes}},
    {Underline::ThickDotted, {.dashes = kDots, .weight = 2}},
    {Underline::ThickDash, {.dashes = kDashes, .weight = 2}},
    {Underline::ThickDashDot, {.dashes = kDashDot, .weight = 2}},
    {Underline::ThickDashDotDot, {.dashes = kDashDotDot, .weight = 2}},
    {Underline::ThickLongDash, {.dashes = kLongDashes, .weight = 2}},
};

/// Underlines that are not in the table are single solid lines.
Stroke StrokeOf(Underline kind) {
  const auto found = std::ranges::find(kStrokes, kind, &NamedStroke::kind);
  return found == std::end(kStrokes) ? Stroke{} : found->stroke;
}

bool IsSpace(char16_t c) {
  constexpr std::u16string_view kSpaces = u" \u0085\u00A0\u1680\u2028\u2029\u202F\u205F\u3000";
  return (c >= u'\t' && c <= u'\r') || (c >= u'\u2000' && c <= u'\u200A') ||
         kSpaces.find(c) != kSpaces.npos;
}

/// The part of a decoration in one line of a piece.
struct Stretch {
  int line = 0;
  int start = 0;
  int end = 0;
  double baseline = 0;  // of the decorated text
};

class DecorationPainter {
 public:
  DecorationPainter(Pencil& pencil, const Piece& piece, std::u16string_view text,
                    const Decoration& decoration, double left)
      : pencil_(pencil), piece_(piece), text_(text), decoration_(decoration), left_(left) {}

  void Paint(const Stretch& stretch) const {
    if (decoration_.strikes > 0) PaintStrikes(stretch);
    if (decoration_.underline == Underline::Words)
      UnderlineWords(stretch);
    else if (decoration_.underline != Underline::None)
      UnderlineBetween(stretch, stretch.start, stretch.end);
  }

 private:
  void PaintStrikes(const Stretch& stretch) const;
  double Weight() const;
  void UnderlineWords(const Stretch& stretch) const;
  void UnderlineBetween(const Stretch& stretch, int start, int end) const;
  void DrawLine(double x1, double x2, double y, const Stroke& stroke) const;
  double X(const Stretch& stretch, int index) const {
    return left_ + piece_.CaretX(stretch.line, index);
  }

  Pencil& pencil_;
  const Piece& piece_;
  const std::u16string_view text_;
  const Decoration& decoration_;
  const double left_;  // of the text's edge
};

/// Width of a thin line for text of this size.
double DecorationPainter::Weight() const {
  constexpr double kAscentPerPixel = 16;
  return std::max(1.0, std::round(decoration_.ascent / kAscentPerPixel));
}

void DecorationPainter::DrawLine(double x1, double x2, double y, const Stroke& stroke) const {
  pencil_.Line({x1, y}, {x2, y}, stroke, stroke.weight * Weight(), decoration_.ink);
}

void DecorationPainter::UnderlineBetween(const Stretch& stretch, int start, int end) const {
  const Stroke stroke = StrokeOf(decoration_.underline);
  double y = std::floor(stretch.baseline + decoration_.descent * 0.4) + 0.5;
  for (int i = 0; i < stroke.lines; ++i, y += (stroke.wave ? 3 : 2) * Weight())
    DrawLine(X(stretch, start), X(stretch, end), y, stroke);
}

void DecorationPainter::UnderlineWords(const Stretch& stretch) const {
  const auto isSpace = [&](int index) { return IsSpace(text_[static_cast<std::size_t>(index)]); };
  for (int start = stretch.start; start < stretch.end;) {
    int end = start;
    while (end < stretch.end && !isSpace(end)) ++end;
    if (end > start) UnderlineBetween(stretch, start, end);
    start = end + 1;
  }
}

void DecorationPainter::PaintStrikes(const Stretch& stretch) const {
  double y = std::floor(stretch.baseline - decoration_.ascent * 0.3) + 0.5;
  for (int i = 0; i < decoration_.strikes; ++i, y -= 2 * Weight())
    DrawLine(X(stretch, stretch.start), X(stretch, stretch.end), y, {});
}

}  // namespace

std::vector<Decoration> DecorationsOf(const CharLook& look, int start, int end) {
  const bool drawn = look.underline != Underline::None || look.strikes > 0 || look.raise != 0;
  if (!drawn || look.hidden) return {};
  return {{.start = start,
           .end = end,
           .underline = look.underline,
           .strikes = look.strikes,
           .ascent = look.ascent,
           .descent = look.descent,
           .raise = look.raise,
           .ink = look.ink}};
}

void Extend(const std::vector<Decoration>& decorations, const PieceLine& line, double& ascent,
            double& descent) {
  for (const Decoration& run : decorations) {
    if (run.end <= line.start || run.start >= line.end) continue;
    ascent = std::max(ascent, run.ascent + run.raise);
    descent = std::max(descent, run.descent - run.raise);
  }
}

void DrawDecorations(Pencil& pencil, const Piece& piece, std::u16string_view text,
                     const std::vector<Decoration>& decorations, PixelPoint origin) {
  for (const Decoration& decoration : decorations) {
    const DecorationPainter painter(pencil, piece, text, decoration, origin.x);
    for (int i = 0; i < std::ssize(piece.lines); ++i) {
      const PieceLine& line = piece.lines[static_cast<std::size_t>(i)];
      const int start = std::max(decoration.start, line.start);
      const int end = std::min(decoration.end, line.end);
      if (start < end) painter.Paint({i, start, end, origin.y + line.baseline - decoration.raise});
    }
  }
}

}  // namespace lumenote

#include "backends/win32/view/ViewPainter.h"

#include <algorithm>
#include <cmath>

#include "backends/win32/view/BoxPainter.h"
#include "backends/win32/view/GdiPencil.h"
#include "view/backdrop/Backdrop.h"
#include "view/layout/InlineBoxes.h"
#include "view/pane/RangeBoxes.h"

namespace lumenote {

namespace {

constexpr wchar_t kBullet = L'\u2022';

int Rounded(double pixels) { return static_cast<int>(std::lround(pixels)); }

const UniscribePiece& PieceOf(const ShownPiece& item) {
  return static_cast<const UniscribePiece&>(*item.piece);
}

/// The left and right edges of some units of one part.
std::pair<int, int> EdgesOf(const UniscribePiece& piece, Selection units) {
  const auto& first = piece.units[static_cast<std::size_t>(units.start)];
  const auto& last = piece.units[static_cast<std::size_t>(units.end) - 1];
  return std::minmax({first.before, last.behind});
}

/// The part of `units` that is selected; empty at its nearer end if none is.
Selection SelectedOf(Selection units, Selection selected) {
  const Position start = std::clamp(selected.start, units.start, units.end);
  return {start, std::clamp(selected.end, start, units.end)};
}

bool IsHighContrast() {
  HIGHCONTRASTW contrast = {};
  contrast.cbSize = sizeof contrast;
  return SystemParametersInfoW(SPI_GETHIGHCONTRAST, sizeof contrast, &contrast, 0) &&
         (contrast.dwFlags & HCF_HIGHCONTRASTON);
}

}  // namespace

ViewColours ViewColours::OfSystem(bool enabled) {
  return {.ground = GetSysColor(enabled ? COLOR_WINDOW : COLOR_BTNFACE),
          .ink = GetSysColor(enabled ? COLOR_WINDOWTEXT : COLOR_GRAYTEXT),
          .highlight = GetSysColor(COLOR_HIGHLIGHT),
          .highlightInk = GetSysColor(COLOR_HIGHLIGHTTEXT),
          .plain = IsHighContrast()};
}

void ViewPainter::Paint(HDC dc, const RECT& area) {
  const int width = area.right - area.left;
  const int height = area.bottom - area.top;
  if (width <= 0 || height <= 0) return;
  const GdiObject<HBITMAP> bitmap(CreateCompatibleBitmap(dc, width, height));
  const MemoryDc buffer(dc);
  const SelectScope selected(buffer.Get(), bitmap.Get());
  SetViewportOrgEx(buffer.Get(), -area.left, -area.top, nullptr);
  PaintArea(buffer.Get(), {1.0 * area.left, 1.0 * area.top, 1.0 * area.right, 1.0 * area.bottom});
  BitBlt(dc, area.left, area.top, width, height, buffer.Get(), area.left, area.top, SRCCOPY);
}

void ViewPainter::PaintArea(HDC dc, const PixelRect& area) {
  SetBkMode(dc, TRANSPARENT);
  Fill(dc, area, colours_.ground);
  for (const ShownPiece& item : pane_.Visible())
    if (item.y < area.bottom && item.y + item.piece->height > area.top) PaintPiece(dc, item, area);
  if (marks_.dropCaret) Fill(dc, *marks_.dropCaret, colours_.ink);
}

void ViewPainter::PaintPiece(HDC dc, const ShownPiece& item, const PixelRect& area) {
  const UniscribePiece& piece = PieceOf(item);
  const Selection selected{piece.ToIndex(std::max(marks_.selection.start, piece.from)),
                           piece.ToIndex(std::min(marks_.selection.end, piece.to))};
  const double left = std::round(pane_.TextLeft());
  PaintBackdrop(dc, item, area);
  if (const auto stripe = BreakBoxOf(pane_, item, marks_.selection))
    Fill(dc, *stripe, colours_.highlight);
  PaintBullets(dc, item);
  for (std::size_t line = 0; line < piece.lines.size(); ++line)
    PaintGrounds(dc, {piece, left, item.y, line}, selected);
  for (std::size_t line = 0; line < piece.lines.size(); ++line)
    PaintText(dc, {piece, left, item.y, line}, selected);
  PaintBoxes(dc, item, area);
  GdiPencil pencil(dc, colours_.ink, colours_.plain);
  DrawDecorations(pencil, piece, piece.text, piece.decorations, {left, item.y});
}

void ViewPainter::PaintBackdrop(HDC dc, const ShownPiece& item, const PixelRect& area) const {
  const double left = std::round(pane_.TextLeft());
  for (const BackdropPart& part :
       BackdropOf(layouter_, pane_.Content(), *item.piece, area.MovedBy(-left, -item.y),
                  {.ink = colours_.ink, .ground = colours_.ground, .plain = colours_.plain}))
    Fill(dc, part.area.MovedBy(left, item.y), part.colour);
}

void ViewPainter::PaintBoxes(HDC dc, const ShownPiece& item, const PixelRect& area) const {
  const Piece& piece = *item.piece;
  const BoxColours colours{colours_.ink, colours_.highlight};
  BoxPainter boxes(dc, pane_.Content(), layouter_.pictures, colours);
  for (const InlineBox& box : piece.boxes) {
    const PixelRect place = piece.PlaceOf(box).MovedBy(std::round(pane_.TextLeft()), item.y);
    const Position at = piece.ToPosition(box.index);
    const Selection& selection = marks_.selection;
    const bool selected = at >= selection.start && at < selection.end;
    if (place.bottom <= area.top || place.top >= area.bottom) continue;
    if (box.number > 0)
      PaintNumber(dc, box.number, place, pane_.Content().CharFormatAt(at), selected);
    else
      boxes.Paint(box, place, selected);
  }
}

void ViewPainter::PaintNumber(HDC dc, int number, const PixelRect& place, CharId format,
                              bool selected) const {
  const CharStyle& style = layouter_.styles.Of(pane_.Content(), format);
  LOGFONTW wanted = style.font->Wanted();
  wanted.lfHeight = -std::max(1, Rounded(place.Height() * kNumberHeight));
  const GdiObject<HFONT> font(CreateFontIndirectW(&wanted));
  const SelectScope fontScope(dc, font.Get());
  const bool own = style.ink != kAutoColour && !colours_.plain;
  SetTextColor(dc, selected ? colours_.highlightInk : own ? style.ink : colours_.ink);
  const std::wstring digits = std::to_wstring(number);
  const UINT before = SetTextAlign(dc, TA_BASELINE);
  TextOutW(dc, Rounded(place.left), Rounded(place.top + place.Height() * kNumberBaseline),
           digits.data(), static_cast<int>(digits.size()));
  SetTextAlign(dc, before);
}

void ViewPainter::PaintGrounds(HDC dc, const LinePlace& place, Selection selected) const {
  for (const LinePart& part : place.piece.parts[place.line]) {
    const CharStyle& style = StyleOf(place.piece.glyphs[part.run]);
    if (style.ground != kAutoColour && !colours_.plain)
      FillUnits(dc, place, part, {part.start, part.end}, style.ground);
    FillUnits(dc, place, part, SelectedOf({part.start, part.end}, selected), colours_.highlight);
  }
}

void ViewPainter::FillUnits(HDC dc, const LinePlace& place, const LinePart&, Selection units,
                            COLORREF colour) const {
  if (units.Length() <= 0) return;
  const auto [left, right] = EdgesOf(place.piece, units);
  const double top = place.top + place.Box().top;
  Fill(dc, {place.left + left, top, place.left + right, top + place.Box().height}, colour);
}

void ViewPainter::PaintText(HDC dc, const LinePlace& place, Selection selected) const {
  for (const LinePart& part : place.piece.parts[place.line]) {
    const GlyphRun& run = place.piece.glyphs[part.run];
    const CharStyle& style = StyleOf(run);
    if (!run.font || place.piece.BoxAt(run.start)) continue;
    const bool own = style.ink != kAutoColour && !colours_.plain;
    const Selection inside = SelectedOf({part.start, part.end}, selected);
    DrawUnits(dc, place, part, {part.start, inside.start}, own ? style.ink : colours_.ink);
    DrawUnits(dc, place, part, inside, colours_.highlightInk);
    DrawUnits(dc, place, part, {inside.end, part.end}, own ? style.ink : colours_.ink);
  }
}

void ViewPainter::DrawUnits(HDC dc, const LinePlace& place, const LinePart& part, Selection units,
                            COLORREF ink) const {
  if (units.Length() <= 0) return;
  const GlyphRun& run = place.piece.glyphs[part.run];
  const auto [first, end] = run.GlyphsOf(units.start, units.end);
  if (first >= end) return;
  const SelectScope selected(dc, run.font->Get());
  SetTextColor(dc, ink);
  const double baseline = place.top + place.Box().baseline - StyleOf(run).raise;
  ScriptTextOut(dc, run.font->Cache(), Rounded(place.left + EdgesOf(place.piece, units).first),
                Rounded(baseline) - run.font->Ascent(), 0, nullptr, &run.analysis, nullptr, 0,
                run.glyphs.data() + first, static_cast<int>(end - first),
                run.advances.data() + first, nullptr, run.offsets.data() + first);
}

void ViewPainter::PaintBullets(HDC dc, const ShownPiece& item) const {
  const Piece& piece = *item.piece;
  if (piece.bullets.empty()) return;
  const CharId format = pane_.Content().CharFormatAt(piece.from);
  const std::shared_ptr<const GdiFont> font = layouter_.styles.Of(pane_.Content(), format).font;
  const SelectScope selected(dc, font->Get());
  SetTextColor(dc, colours_.ink);
  for (const auto& [line, x] : piece.bullets) {
    const double baseline = item.y + piece.lines[static_cast<std::size_t>(line)].baseline;
    TextOutW(dc, Rounded(pane_.TextLeft() + x), Rounded(baseline) - font->Ascent(), &kBullet, 1);
  }
}

}  // namespace lumenote

#include "backends/qt/printing/PrintedNote.h"

#include <QBuffer>
#include <QPdfWriter>
#include <algorithm>
#include <numeric>

#include "backends/qt/text/FontNames.h"
#include "backends/qt/text/PiecePainter.h"
#include "base/Twips.h"
#include "view/pages/PrintedFootnotes.h"

namespace lumenote {

namespace {

constexpr double kScreenDots = 96;    // per inch, of a layouter without zoom
constexpr double kTallestBox = 0.95;  // of a page; its line has a descent, too
constexpr double kPartOfMargin = 2;   // that tables may take
constexpr double kRuleSpace = 240;    // twips above the first footnote
constexpr double kRuleLength = 2880;
constexpr double kRuleWidth = 10;
constexpr double kNumberSize = 180;  // twips
constexpr double kNumberEdge = 400;  // the least from its baseline to the paper's

QPalette PaperColours() {
  QPalette palette;
  palette.setColor(QPalette::Text, Qt::black);
  palette.setColor(QPalette::Base, Qt::white);
  return palette;
}

}  // namespace

PrintedNote::Text::Text(const Document& content, Selection range, const PrintedNote& note)
    : document(content), flow([&]() -> PageFlow {
        layouter.ForPaper();
        layouter.Zoom(note.dotsPerInch_ / kScreenDots);
        layouter.Width(note.Dots(note.paper_.TextWidth()));
        layouter.WidestTable(
            note.Dots(note.paper_.TextWidth() + note.paper_.right / kPartOfMargin));
        layouter.Tallest(note.paper_.TextHeight() * kTallestBox);
        return {content, range, layouter, note.Dots(note.paper_.TextHeight())};
      }()) {}

PrintedNote::PrintedNote(const Document& document, Selection range, const Paper& paper,
                         int dotsPerInch)
    : paper_(paper),
      dotsPerInch_(dotsPerInch),
      footnotes_(FootnotesIn(document, range)),
      body_(document, range, *this),
      notes_(footnotes_, {0, footnotes_.Length()}, *this),
      bands_(body_.flow.Bands()) {
  if (footnotes_.Length() > 0) {
    const std::size_t first = bands_.size();
    bands_.insert(bands_.end(), notes_.flow.Bands().begin(), notes_.flow.Bands().end());
    bands_[first].space += Dots(kRuleSpace);
  }
  starts_ = PageStarts(bands_, Dots(paper_.TextHeight()));
}

double PrintedNote::Dots(double twips) const { return twips / kTwipsPerInch * dotsPerInch_; }

void PrintedNote::Paint(QPainter& painter, int page) {
  const auto number = static_cast<std::size_t>(page);
  const std::size_t first = starts_[number];
  const std::size_t last = number + 1 < starts_.size() ? starts_[number + 1] : bands_.size();
  const std::size_t bodyEnd = body_.flow.Bands().size();
  painter.save();
  painter.translate(Dots(paper_.left), Dots(paper_.top));
  double y = 0;
  if (first < bodyEnd) y = PaintText(painter, body_, first, std::min(last, bodyEnd), 0);
  if (last > bodyEnd) {
    if (first < bodyEnd) y += Dots(kRuleSpace);
    if (first <= bodyEnd) PaintRule(painter, y - Dots(kRuleSpace) / 2);
    PaintText(painter, notes_, std::max(first, bodyEnd) - bodyEnd, last - bodyEnd, y);
  }
  painter.restore();
  PaintNumber(painter, page);
}

// Returns where the text ends. A row that is cut shows no more than its part.
double PrintedNote::PaintText(QPainter& painter, Text& text, std::size_t first, std::size_t last,
                              double y) {
  static const QPalette kColours = PaperColours();
  PiecePainter pieces(painter, text.document, text.layouter, kColours);
  const double left = -Dots(paper_.left);
  double end = y;
  text.flow.ForEachPart(first, last, [&](const PageFlow::Part& part) {
    const auto& piece = static_cast<const QtPiece&>(part.piece);
    const QPointF origin(0, y + part.y);
    const QRectF area(left, y + part.top, Dots(paper_.width), part.bottom - part.top);
    const bool cut = part.y < part.top || part.bottom < part.y + piece.height;
    const RowOnPage row = part.AsRow();
    painter.save();
    if (cut && !piece.cells.empty()) painter.setClipRect(area);
    pieces.PaintBackdrop(piece, origin, area, &row);
    pieces.PaintText(piece, origin, area);
    pieces.PaintOver(piece, origin, area, {});
    painter.restore();
    end = y + part.bottom;
  });
  return end;
}

void PrintedNote::PaintRule(QPainter& painter, double y) const {
  painter.fillRect(QRectF(0, y, Dots(kRuleLength), Dots(kRuleWidth)), Qt::black);
}

void PrintedNote::PaintNumber(QPainter& painter, int page) const {
  QFont font(MachineFamily({u"Arial"}));
  font.setPixelSize(qRound(Dots(kNumberSize)));
  painter.setFont(font);
  painter.setPen(Qt::black);
  const double size = Dots(kNumberSize);
  const double room = std::max(Dots(paper_.bottom) / 2, Dots(kNumberEdge));
  const QRectF line(0, Dots(paper_.height) - room - size, Dots(paper_.width), 2 * size);
  painter.drawText(line, Qt::AlignHCenter | Qt::AlignTop,
                   QStringLiteral("%1 / %2").arg(page + 1).arg(PageCount()));
}

QPageLayout LayoutOf(const Paper& paper) {
  const QSizeF points(paper.width / kTwipsPerPoint, paper.height / kTwipsPerPoint);
  return {QPageSize(points, QPageSize::Point), QPageLayout::Portrait, {}};
}

bool PrintPages(QPagedPaintDevice& device, PrintedNote& note, const std::vector<int>& pages) {
  QPainter painter;
  if (!painter.begin(&device)) return false;
  for (std::size_t i = 0; i < pages.size(); ++i) {
    if (i > 0 && !device.newPage()) return false;
    note.Paint(painter, pages[i]);
  }
  return painter.end();
}

QByteArray PdfOf(const Document& document, const QString& title) {
  const Paper paper = PaperOf(document);
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  QPdfWriter writer(&buffer);
  writer.setResolution(kPrintedDots);
  writer.setTitle(title);
  writer.setPageLayout(LayoutOf(paper));
  PrintedNote note(document, {0, document.Length()}, paper, kPrintedDots);
  std::vector<int> pages(static_cast<std::size_t>(note.PageCount()));
  std::iota(pages.begin(), pages.end(), 0);
  PrintPages(writer, note, pages);
  return bytes;
}

}  // namespace lumenote

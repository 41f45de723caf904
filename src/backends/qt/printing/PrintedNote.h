// A note on paper.
#pragma once
#include <QByteArray>
#include <QPageLayout>
#include <QPagedPaintDevice>
#include <QPainter>
#include <vector>

#include "backends/qt/text/QtLayouter.h"
#include "document/PageSource.h"
#include "view/pages/PageFlow.h"

namespace lumenote {

/// The pages of a note: its text, in black where it states no colour, then the texts of its
/// footnotes; at the foot of each page its number. The document must outlive it and not change.
class PrintedNote {
 public:
  /// Lays the range out for the paper, at the resolution of its device.
  PrintedNote(const Document& document, Selection range, const Paper& paper, int dotsPerInch);

  int PageCount() const { return static_cast<int>(starts_.size()); }
  /// Paints a page, counted from 0, on a device of that resolution; the painter's origin is the
  /// paper's corner.
  void Paint(QPainter& painter, int page);

 private:
  /// A text with what lays it out.
  struct Text {
    Text(const Document& content, Selection range, const PrintedNote& note);
    const Document& document;
    QtLayouter layouter;
    PageFlow flow;
  };

  double Dots(double twips) const;
  double PaintText(QPainter& painter, Text& text, std::size_t first, std::size_t last, double y);
  void PaintRule(QPainter& painter, double y) const;
  void PaintNumber(QPainter& painter, int page) const;

  const Paper paper_;
  const int dotsPerInch_;
  const Document footnotes_;
  Text body_;
  Text notes_;
  std::vector<PageBand> bands_;      // of both texts
  std::vector<std::size_t> starts_;  // of pages, among the bands
};

/// Of what is printed, per inch.
inline constexpr int kPrintedDots = 600;

/// Paper without margins of its own.
QPageLayout LayoutOf(const Paper& paper);
/// Paints pages, counted from 0, in that order; returns false as soon as the device fails.
bool PrintPages(QPagedPaintDevice& device, PrintedNote& note, const std::vector<int>& pages);

/// The note as a PDF file.
QByteArray PdfOf(const Document& document, const QString& title);

}  // namespace lumenote

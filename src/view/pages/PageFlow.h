// Text as it flows over pages.
#pragma once
#include <functional>

#include "document/PageSource.h"
#include "view/backdrop/Backdrop.h"
#include "view/layout/TextLayouter.h"
#include "view/pages/PageBreaks.h"

namespace lumenote {

/// Lays out a part of a document twice: once to know its bands, then for each page that is painted,
/// so that only one page's pieces exist at a time.
class PageFlow {
 public:
  /// Both must outlive the flow, and neither may change. `room` is the height of a page, in the
  /// layouter's pixels.
  PageFlow(const Document& document, Selection range, TextLayouter& layouter, double room);

  const std::vector<PageBand>& Bands() const { return bands_; }

  /// A piece on a page, on which those of rows that head a table stand again: `y` is its top,
  /// possibly above what is seen of it, between `top` and `bottom`. All are pixels from the first
  /// band's top.
  struct Part {
    const Piece& piece;
    double y = 0;
    double top = 0;
    double bottom = 0;

    /// From the piece's top.
    RowOnPage AsRow() const;
  };
  /// Visits the pieces of the bands from `first` up to, not including, `last`. A part is valid
  /// during the call only.
  void ForEachPart(std::size_t first, std::size_t last,
                   const std::function<void(const Part&)>& visit) const;

 private:
  struct Progress;

  std::unique_ptr<Piece> LayOut(Position from, Position stop) const;
  Position Behind(const Piece& piece) const;
  void AddPiece(const Piece& piece, Progress& progress);
  void AddLines(const Piece& piece, const PageBand& whole, const PageWishes& wishes, int& number);
  void AddRow(const Piece& row, const PageBand& whole);
  void AddHead(const Piece& row, PageBand& band, Progress& progress) const;
  double VisitHead(const PageBand& band, const std::function<void(const Part&)>& visit) const;
  double SpaceAbove(const Piece& piece) const;
  double SpaceBelow(const Piece& piece) const;

  const Document& document_;
  const Selection range_;
  TextLayouter& layouter_;
  const double room_;
  std::vector<PageBand> bands_;
};

}  // namespace lumenote

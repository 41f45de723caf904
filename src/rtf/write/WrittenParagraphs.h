// The paragraphs of a text, and the table rows that they form.
#pragma once
#include <cstddef>
#include <vector>

#include "document/Document.h"

namespace lumenote {

/// The paragraphs of a text in order.
struct WrittenParagraphs {
  /// Outside any table row. A row without its end, or cut in two by another one, as an edit or a
  /// damaged source may leave it, is ordinary text. `ParagraphScan` decides that, so the writer
  /// only meets whole rows.
  static constexpr int kNoRow = -1;
  struct Cell {
    std::size_t paragraph = 0;  // in which it ends
    ParaId format = 0;
    int nesting = 0;  // as its own format says
    bool endsRow = false;
    /// Whether it is part of a whole row. Otherwise its text belongs to what follows, whose format
    /// and depth it has here.
    bool whole = true;
    int rowDepth = kNoRow;  // nesting of that row
  };

  /// Items kept before some character of the paragraph that nevertheless begin the paragraph.
  struct LeadingItems {
    std::size_t paragraph;
    KeptId kept;
  };

  std::vector<ParaId> formats;
  std::vector<int> rowDepths;         // nesting of the whole row that each is part of
  std::vector<Cell> cells;            // in order
  std::vector<LeadingItems> leading;  // likewise
  /// The kept number of a selection's first character when a page or section begins before that:
  /// the beginning is not part of the selection.
  KeptId outside = 0;
};

/// The table rows open at a point of a backward scan: their ends have been seen, their beginnings
/// not yet. Each is known by its nesting, the innermost is last. The members return the nesting of
/// the row that something belongs to, or `kNoRow`.
class OpenRows {
 public:
  /// The end of a row, which opens that row.
  int End(int nesting);
  /// A paragraph of that nesting; one nested deeper than any open row belongs to the innermost.
  /// A row of nesting 0 is that one paragraph.
  int Paragraph(int nesting);
  /// The end of a cell. A cell of a nested row belongs to no outer row.
  int Cell(int nesting);

 private:
  void LeaveDeeperThan(int nesting);
  int Innermost() const { return open_.empty() ? WrittenParagraphs::kNoRow : open_.back(); }

  std::vector<int> open_;
};

/// Finds the paragraphs of a text in steps: takes the text piece by piece, then finds its rows.
class ParagraphScan {
 public:
  /// For the text from `from` on; with `mark`, for the whole document.
  ParagraphScan(const Document& document, Position from, const FinalMark* mark);

  /// Takes the next piece; `found` then has the formats of the paragraphs that touch it.
  void Take(Position from, Position to);
  /// Call after the last piece.
  void TakeEnd();
  /// Scans at most so many more paragraphs, backwards; false once all are done.
  bool FindRows(std::size_t paragraphs);

  WrittenParagraphs found;

 private:
  bool IsAnythingKept() const { return document_.Formats().kept.Size() > 1; }
  void AddParagraph(ParaId format);
  void FindKept(Position at, TextView text, CharId format);
  void FindRow(std::size_t paragraph);

  const Document& document_;
  const FinalMark* mark_;
  Position first_;  // the first paragraph's number in the document
  KeptId last_;
  // Of the backward scan: the rows and cells not scanned yet.
  OpenRows open_;
  std::size_t rows_ = 0;
  std::size_t cells_ = 0;
};

}  // namespace lumenote

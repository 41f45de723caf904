// The paragraphs of a text, and the table rows that they form.
#pragma once
#include <cstddef>
#include <vector>

#include "document/Document.h"

namespace lumenote {

/// The paragraphs of a text in order.
struct WrittenParagraphs {
  /// A row that an edit or a damaged source has left without its end, or in the middle of another
  /// one, is ordinary text.
  static constexpr int kNoRow = -1;
  struct Cell {
    std::size_t paragraph = 0;  // that it ends in
    ParaId format = 0;
    int nesting = 0;  // that it tells of itself
    bool endsRow = false;
    /// Whether it is part of a whole row; else its text is part of what follows, whose format and
    /// depth it has here.
    bool whole = true;
    int rowDepth = kNoRow;  // nesting of that row
  };

  /// What is kept before a character of the paragraph but begins the paragraph, whatever an edit
  /// has put before that character.
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

/// Going backwards through a text: the rows whose ends have been passed and whose beginnings have
/// not, by their nesting, the innermost last.
class OpenRows {
 public:
  int End(int nesting);
  /// The row of a paragraph that calls itself so deep: deeper than the innermost row is in that
  /// one. A row that does not call itself part of a table is one paragraph.
  int Paragraph(int nesting);
  /// The same of a cell. One of a nested row is part of no other.
  int Cell(int nesting);

 private:
  void LeaveDeeperThan(int nesting);
  int Innermost() const { return open_.empty() ? WrittenParagraphs::kNoRow : open_.back(); }

  std::vector<int> open_;
};

/// Finds the paragraphs of a text bit by bit: first all pieces of it are taken, then all rows
/// found.
class ParagraphScan {
 public:
  /// Of the text from `from` on, or with `mark` of the whole document.
  ParagraphScan(const Document& document, Position from, const FinalMark* mark);

  /// The next piece; `found` has the formats of the paragraphs that touch it then.
  void Take(Position from, Position to);
  /// Behind the last piece.
  void TakeEnd();
  /// Goes on through at most so many paragraphs, backwards; whether there are more.
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
  // Of the way backwards: what is still to be passed.
  OpenRows open_;
  std::size_t rows_ = 0;
  std::size_t cells_ = 0;
};

}  // namespace lumenote

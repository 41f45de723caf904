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
    std::size_t paragraph;  // that it ends in
    ParaId format;
    int nesting;  // that it tells of itself
    bool endsRow;
    /// Whether it is part of a whole row; else its text is part of what follows, whose format and
    /// depth it has here.
    bool stands = true;
    int rowDepth = kNoRow;  // nesting of that row
  };

  /// What is kept before a character of the paragraph but begins the paragraph, whatever an edit
  /// has put before that character.
  struct Lead {
    std::size_t paragraph;
    KeptId kept;
  };

  /// The paragraphs between `from` and `to`, and with `mark` the last one.
  WrittenParagraphs(const Document& document, Position from, Position to, const FinalMark* mark);

  std::vector<ParaId> formats;
  std::vector<int> rowDepths;  // nesting of the whole row that each is part of
  std::vector<Cell> cells;     // in order
  std::vector<Lead> leads;     // likewise
  /// The kept number of a selection's first character when a page or section begins before that:
  /// the beginning is not part of the selection.
  KeptId outside = 0;

 private:
  void FindKept(const Document& document, Position from, Position to, const FinalMark* mark);
  void FindRows(const FormatTables& tables);
};

}  // namespace lumenote

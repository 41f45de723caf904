// What the source says of paper and pages: size, margins, where a page ends, what stays on one.
#pragma once
#include "document/Document.h"

namespace lumenote {

/// Lengths in twips.
struct Paper {
  static constexpr int kMargin = 1134;  // 2 cm

  int width = 11906;  // A4
  int height = 16838;
  int left = kMargin;
  int right = kMargin;
  int top = kMargin;
  int bottom = kMargin;
  bool operator==(const Paper&) const = default;

  int TextWidth() const { return width - left - right; }
  int TextHeight() const { return height - top - bottom; }
  /// Gives margins that leave no room for text their usual width.
  void MakeRoom();
};

/// The paper that the note states, A4 where it says nothing; always with room for text.
Paper PaperOf(const Document& document);

/// What a paragraph asks of the pages.
struct PageWishes {
  bool newPage = false;    // it begins one
  bool together = false;   // its lines stay on one page
  bool withNext = false;   // and on that of the next paragraph
  bool loneLines = false;  // its first or last line may be alone on a page
};
PageWishes PageWishesOf(const FormatTables& tables, const ParaFormat& paragraph);

/// Whether a page begins with the paragraph that starts at `position`, by a break that ends no
/// paragraph of its own.
bool BeginsPage(const Document& document, Position position);

/// Whether a page ends with the paragraph that holds `position`.
bool EndsPage(const Document& document, Position position);

}  // namespace lumenote

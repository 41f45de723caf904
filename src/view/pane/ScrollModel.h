// The scroll position, kept as a line and an offset, and its equivalent on a scroll bar's scale.
#pragma once
#include <optional>
#include <vector>

#include "view/layout/LayoutCache.h"

namespace lumenote {

struct ShownPiece {
  const Piece* piece;
  double y;  // distance of the piece's top from the pane's
};

/// Scrolling is exact in pixels and line by line, so it costs the same anywhere. The total height
/// is estimated from the character count for large documents. For smaller ones it is that of what
/// is laid out, and estimated for the rest, until `Refine` has laid out all. All lengths are
/// pixels.
class ScrollModel {
 public:
  ScrollModel(const Document& document, LayoutCache& cache) : document_(document), cache_(cache) {}

  void PaneHeight(double height) { paneHeight_ = height; }
  double PaneHeight() const { return paneHeight_; }

  /// The pieces in the pane from top to bottom, at least one. Leaves no space below the last line
  /// while lines above could fill it.
  std::vector<ShownPiece> Visible();
  /// The top of the piece that holds `position` if it is in the pane or adjacent to what is.
  std::optional<double> YNear(Position position);

  void By(double pixels);
  void ToStart();
  /// Scrolls the line at `position` into view: minimally if it is near, else to the middle.
  void Reveal(Position position);
  void Changed(const DocumentChange& change);
  /// Heights have changed with the width or zoom.
  void Relaid() { heightOfCharacter_ = 0; }

  /// A scroll bar's scale: from 0 to `total` minus the pane's height.
  struct Scale {
    double total = 0;
    double value = 0;
  };
  Scale Read();
  void To(double value);
  /// Whether `Refine` would make the scale last read more exact.
  bool CanRefine() const { return firstGap_ >= 0; }
  /// Lays out some more of a small document, in about the time of a frame.
  void Refine();

 private:
  struct Anchor {
    const Piece* piece;
    double offset;  // of the pane's top relative to the piece's
  };

  Anchor Top();
  void Top(Anchor anchor);
  Anchor Moved(Anchor anchor, double pixels);
  double RoomBelow(Anchor anchor);
  bool IsSmall() const;
  double CharacterHeight();
  Scale ReadPieces(Anchor top);
  double Guess(Position from, Position to) const;
  Scale Estimate(Anchor top);

  const Document& document_;
  LayoutCache& cache_;
  double paneHeight_ = 0;
  Position line_ = 0;  // a position in the top line
  double hidden_ = 0;  // how much of that line is above the pane; negative for space above it
  double heightOfCharacter_ = 0;  // 0: unknown
  Position firstGap_ = -1;        // the first position of a small document that is not laid out
};

}  // namespace lumenote

// Which part of the document is looked at, kept as a line and an offset, and where that is on the
// scale of a scroll bar.
#pragma once
#include <optional>
#include <vector>

#include "view/layout/LayoutCache.h"

namespace lumenote {

struct ShownPiece {
  const Piece* piece;
  double y;  // of the piece's top, from the top of the pane
};

/// Moves go by exact pixels from line to line, so they cost the same anywhere. The height of the
/// whole is known of small documents; of larger ones it is estimated by their characters. All
/// lengths are pixels.
class ScrollModel {
 public:
  ScrollModel(const Document& document, LayoutCache& cache) : document_(document), cache_(cache) {}

  void PaneHeight(double height) { paneHeight_ = height; }
  double PaneHeight() const { return paneHeight_; }

  /// The pieces in the pane from top to bottom; at least one. Leaves no room below the last line as
  /// long as there are lines above.
  std::vector<ShownPiece> Visible();
  /// Where the piece is if it is in the pane or next to what is.
  std::optional<double> YNear(const Piece& piece);

  void By(double pixels);
  void ToStart();
  /// So that the line at `position` is seen: by as little as possible when it is near, else in the
  /// middle.
  void Reveal(Position position);
  void Changed(const DocumentChange& change);
  /// Heights have changed: another width or zoom.
  void Relaid() { heightOfCharacter_ = 0; }

  /// The scale: from 0 to `total` less the pane's height.
  struct Scale {
    double total = 0;
    double value = 0;
  };
  Scale Read();
  void To(double value);

 private:
  struct Spot {
    const Piece* piece;
    double offset;  // of the pane's top from the piece's
  };

  Spot Top();
  void Top(Spot spot);
  Spot Moved(Spot spot, double pixels);
  double RoomBelow(Spot spot);
  bool IsSmall() const;
  double CharacterHeight();
  Scale ReadExactly(Spot top);
  Scale Estimate(Spot top);

  const Document& document_;
  LayoutCache& cache_;
  double paneHeight_ = 0;
  Position line_ = 0;  // a position in the line at the top
  double hidden_ = 0;  // how much of it is above the pane; negative when there is room above it
  double heightOfCharacter_ = 0;  // 0: not known yet
};

}  // namespace lumenote

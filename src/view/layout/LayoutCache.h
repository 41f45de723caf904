// The pieces of the document that are laid out at present.
#pragma once
#include <memory>
#include <vector>

#include "surface/editing/SurfaceView.h"
#include "view/layout/TextLayouter.h"

namespace lumenote {

/// Lays out only what is asked for, and caches some of it. Invariants: pieces are sound, do not
/// overlap and are in text order. A returned piece is valid until the next `Changed`, `Clear` or
/// `Trim`.
class LayoutCache {
 public:
  LayoutCache(const Document& document, TextLayouter& layouter)
      : document_(document), layouter_(layouter) {}

  /// The piece that shows a caret at `position`.
  const Piece& At(Position position);
  /// The next (previous) piece; null at the document's ends.
  const Piece* After(const Piece& piece);
  const Piece* Before(const Piece& piece);

  void Changed(const DocumentChange& change);
  void Clear() { pieces_.clear(); }
  /// If there are many pieces, drops those far from `from`..`to`.
  void Trim(Position from, Position to);

  const std::vector<std::unique_ptr<Piece>>& Pieces() const { return pieces_; }

 private:
  using Iterator = std::vector<std::unique_ptr<Piece>>::iterator;

  Iterator FirstBehind(Position position);
  const Piece* Find(Position position);
  Iterator FirstTouched(Position position);
  void DropOldFormat(Position position);
  void DropRows(Position position);
  const Piece& Add(std::unique_ptr<Piece> piece);
  Position UsualLength(Position from, Position paragraphEnd) const;
  const Piece& LayOutFrom(Position from, Position paragraphEnd);
  const Piece& LayOutTo(Position position);
  Position StartNear(Position position, Position paragraphStart);
  bool IsSound(Position position) const;

  const Document& document_;
  TextLayouter& layouter_;
  std::vector<std::unique_ptr<Piece>> pieces_;
};

}  // namespace lumenote

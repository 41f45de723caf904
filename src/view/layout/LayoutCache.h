// The pieces of the document that are laid out at the moment.
#pragma once
#include <memory>
#include <vector>

#include "surface/editing/SurfaceView.h"
#include "view/layout/TextLayouter.h"

namespace lumenote {

/// Lays out what is looked at and nothing else, and remembers some of it. Invariants: pieces do not
/// overlap, and are in the order of the text. A piece handed out stays until the next `Changed`,
/// `Clear` or `Trim`.
class LayoutCache {
 public:
  LayoutCache(const Document& document, TextLayouter& layouter)
      : document_(document), layouter_(layouter) {}

  /// The piece in which a caret at `position` stands.
  const Piece& At(Position position);
  /// The next and the previous piece; null at the document's ends.
  const Piece* After(const Piece& piece);
  const Piece* Before(const Piece& piece);

  void Changed(const DocumentChange& change);
  void Clear() { pieces_.clear(); }
  /// When there are many, forgets the pieces far from those around `from`..`to`.
  void Trim(Position from, Position to);

  const std::vector<std::unique_ptr<Piece>>& Pieces() const { return pieces_; }

 private:
  using Place = std::vector<std::unique_ptr<Piece>>::iterator;

  Place FirstBehind(Position position);
  const Piece* Find(Position position);
  Place FirstTouched(Position position);
  void DropOldFormat(Position position);
  const Piece& Add(std::unique_ptr<Piece> piece);
  const Piece& LayOutFrom(Position from, Position paragraphEnd);
  const Piece& LayOutTo(Position position);
  Position StartNear(Position position, Position paragraphStart);

  const Document& document_;
  TextLayouter& layouter_;
  std::vector<std::unique_ptr<Piece>> pieces_;
};

}  // namespace lumenote

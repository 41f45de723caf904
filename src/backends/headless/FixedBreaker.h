// Line layout without fonts: every character is half as wide as it is high.
#pragma once
#include "document/LineTable.h"

namespace lumenote {

/// Lengths are twips from the left edge. A tab goes to the next multiple of half an inch; lines
/// break behind blanks, tabs and hyphens, a longer word is cut; blanks at a line's end hang over;
/// every alignment is laid out flush left.
class FixedBreaker final : public LineBreaker {
 public:
  /// `width`: where lines wrap.
  explicit FixedBreaker(float width) : width_(width) {}

  float Width() const { return width_; }
  /// The owner resets the line tables that use this breaker.
  void Width(float twips) { width_ = twips; }

  std::vector<Position> Break(const Document& document, Position from, Position to) override;
  float XOf(const Document& document, Position lineStart, Position position) override;
  Position AtX(const Document& document, Position lineStart, Position lineEnd, float x) override;

 private:
  float width_;
};

}  // namespace lumenote

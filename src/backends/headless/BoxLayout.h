// Line layout of one rich-text box without fonts.
#pragma once
#include "backends/headless/FixedBreaker.h"
#include "surface/editing/SurfaceView.h"

namespace lumenote {

class DocumentSurface;
class RichTextBox;

/// Lines wrap at the surface's right margin, or at the box's width when there is none. Outlives the
/// surface.
class BoxLayout final : public SurfaceView {
 public:
  explicit BoxLayout(const RichTextBox& box);

  FixedBreaker& Breaker() { return breaker_; }
  void Attach(DocumentSurface& surface);

  // SurfaceView
  void DocumentChanged(const DocumentChange&) override {}
  void SelectionChanged() override {}
  /// Also called when the box itself may have got another width.
  void WrapWidthChanged() override;
  void RevealCaret() override {}
  int LinesPerPage() const override;

 private:
  float WrapWidth() const;

  const RichTextBox& box_;
  FixedBreaker breaker_;
  DocumentSurface* surface_ = nullptr;
};

}  // namespace lumenote

// A surface as it is shown on a screen and used, without a toolkit.
#pragma once
#include <optional>
#include <string>
#include <vector>

#include "view/pane/ViewHost.h"

namespace lumenote {

/// A view: it owns no text. What the surface tells it is gathered and shown in one go, by `Settle`.
/// The surface may go first, after `Detach`; then nothing but `IsAttached` and `Edits` may be
/// called.
class NoteView : private SurfaceView {
 public:
  /// All outlive the view; the surface's breaker uses the same layouter.
  NoteView(DocumentSurface& surface, TextLayouter& layouter, ViewHost& host);
  ~NoteView() override;
  NoteView(const NoteView&) = delete;
  NoteView& operator=(const NoteView&) = delete;

  void Detach();
  bool IsAttached() const { return attached_; }
  DocumentSurface& Surface() const { return pane_.Surface(); }
  TextPane& Pane() { return pane_; }
  ViewHost& Host() { return host_; }
  bool IsLocked() const { return host_.IsLocked(); }
  /// How many times the document has changed under this view.
  int Edits() const { return edits_; }

  /// Runs an act of the user; the view may be detached when it returns.
  void Act(const std::function<void()>& act) { host_.Act(act); }
  /// Types, unless the box is locked; any line end is a paragraph's.
  void Type(std::u16string_view text);
  /// Makes it the selection, with the caret at its end.
  void Select(Position anchor, Position caret);

  // What the window does with it.
  void Resize(PixelSize size);
  void Show(bool visible);
  void Focus(bool has);
  /// Half a period of the caret's blinking has passed.
  void Blink();
  /// Scrolls by pixels, as the user does.
  void ScrollBy(double pixels);
  void Zoom(double factor);
  /// By so many steps, out of them where negative.
  void ZoomBy(double steps);
  /// Colours or fonts are others now: everything is laid out and painted anew.
  void Restyle();
  /// For want of memory what was laid out is forgotten; it is laid out again when it is shown.
  void Forget() { pane_.Cache().Clear(); }

  void Compose(Composition text);
  /// Shows where a drop would go; empty for none.
  void DropCaret(std::optional<Position> position);

  /// Brings scroll bars and screen up to what the surface has told.
  void Settle();
  bool IsSettled() const { return !settleSoon_; }
  /// What is to be painted over the text now.
  ViewMarks Marks();
  /// Where what is laid out is not what the document holds; for tests.
  std::vector<std::string> Differences();

 private:
  void DocumentChanged(const DocumentChange& change) override;
  void SelectionChanged() override;
  void WrapWidthChanged() override;
  void RevealCaret() override;
  int LinesPerPage() const override { return pane_.LinesPerPage(); }
  std::optional<Line> ShownLine(Position position) override { return pane_.ShownLine(position); }

  void SettleSoon();

  mutable TextPane pane_;
  ViewHost& host_;
  ViewDamage damage_{pane_};
  std::optional<Position> dropCaret_;
  int edits_ = 0;
  bool attached_ = true;
  bool visible_ = false;
  bool focused_ = false;
  bool caretLit_ = false;
  bool revealing_ = false;   // the caret is to be brought into view
  bool moved_ = false;       // the selection, since the host was told
  bool settleSoon_ = false;  // the host has been asked to settle
};

}  // namespace lumenote

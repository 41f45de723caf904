// A surface on screen, operated by the user, without a toolkit.
#pragma once
#include <optional>
#include <string>
#include <vector>

#include "view/pane/ViewHost.h"

namespace lumenote {

/// Owns no text. Collects the surface's notifications and shows them together in `Settle`. The
/// surface may be destroyed first, after `Detach`; then only `IsAttached` and `Edits` may be
/// called.
class NoteView : private SurfaceView {
 public:
  /// Pixels of a scroll bar's step; a wheel's notch scrolls as many as the system has lines for it.
  static constexpr double kScrollStep = 20;

  /// All must outlive the view; the surface's breaker uses the same layouter.
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
  /// Number of document changes seen by this view.
  int Edits() const { return edits_; }

  /// Executes user input; may detach the view.
  void Act(const std::function<void()>& act) { host_.Act(act); }
  /// Types unless the box is locked; every line end is a paragraph break.
  void Type(std::u16string_view text);
  /// Selects a range with the caret at its end.
  void Select(Position anchor, Position caret);

  // Called by the window.
  void Resize(PixelSize size);
  void Show(bool visible);
  /// May detach the view: what is being composed is typed before the keyboard goes.
  void Focus(bool has);
  /// Half a blink period has passed.
  void Blink();
  /// Scrolls by pixels, as the user does.
  void ScrollBy(double pixels);
  /// The same by clicks on a scroll bar's arrows, or beside its slider; upwards if negative.
  void ScrollBySteps(double steps) { ScrollBy(steps * kScrollStep); }
  void ScrollByPages(double pages);
  /// The sliders have been moved: to a value on the scale of `ScrollModel::Read`, and to a distance
  /// up to `TextPane::MostRight`.
  void ScrollTo(double value);
  void ScrollAcrossTo(double pixels);
  void Zoom(double factor);
  /// Zooms in by that many steps, or out if negative.
  void ZoomBy(double steps);
  /// Colours have changed: lays out and paints everything again at the same width. After a change
  /// of fonts, `Zoom` to the present factor, which also empties the line table.
  void Restyle();
  /// Discards the layout to free memory; it is recreated when it is shown.
  void Forget() { pane_.Cache().Clear(); }

  void Compose(Composition text);
  bool Complete() override;
  /// While the input method drops what the view types itself, its events mean nothing.
  bool IsCompleting() const { return completing_; }
  /// Shows where a drop would insert; empty for none.
  void DropCaret(std::optional<Position> position);

  /// Updates scroll bars and screen from the collected notifications.
  void Settle();
  bool IsSettled() const { return !settleSoon_; }
  /// Does a part of what need not be done at once; asks for another call if more is left.
  void WorkIdly();
  /// What frames the selection on the screen, in the pane; empty for none. Settles.
  std::optional<PixelRect> SelectionBox();
  /// What to paint over the text now.
  ViewMarks Marks();
  /// Where the layout differs from the document's content; for tests.
  std::vector<std::string> Differences();

 private:
  void DocumentChanged(const DocumentChange& change) override;
  void SelectionChanged() override;
  void WrapWidthChanged() override;
  void RevealCaret() override;
  double TextWidth() const override { return pane_.TextWidth(); }
  int LinesPerPage() const override { return pane_.LinesPerPage(); }
  std::optional<Line> ShownLine(Position position) override { return pane_.ShownLine(position); }

  void SettleSoon();
  bool NotesAreNumbered();

  mutable TextPane pane_;
  ViewHost& host_;
  ViewDamage damage_{pane_};
  std::optional<Position> dropCaret_;
  int edits_ = 0;
  bool attached_ = true;
  bool completing_ = false;
  bool visible_ = false;
  bool focused_ = false;
  bool caretLit_ = false;
  bool revealing_ = false;   // the caret must be scrolled into view
  bool moved_ = false;       // the selection, since the host was notified
  bool settleSoon_ = false;  // the host has been asked to settle
};

}  // namespace lumenote

// The widget that shows a rich-text surface and takes the user's acts on it.
#pragma once
#include <QAbstractScrollArea>
#include <QBasicTimer>
#include <QMimeData>
#include <QPointer>
#include <functional>
#include <string>
#include <vector>

#include "backends/qt/text/TextPane.h"
#include "backends/qt/view/ViewBars.h"
#include "backends/qt/view/ViewDamage.h"
#include "backends/qt/view/ViewDrop.h"
#include "backends/qt/view/ViewInput.h"
#include "backends/qt/view/ViewKeys.h"
#include "backends/qt/view/ViewMouse.h"
#include "forms/Control.h"
#include "surface/editing/SurfaceView.h"

namespace lumenote {

/// How a view reaches the window that it stands on; each may be empty.
struct ViewDoors {
  /// Runs an act of the user on the surface, as an event of the window.
  std::function<void(const std::function<void()>&)> act{};
  /// A button was released at a point in twips from the view's corner.
  std::function<void(const MouseEvent&)> mouseUp{};
  /// Whether the user may not edit.
  std::function<bool()> locked{};
};

/// A view: it owns no text. What the surface tells it is gathered and shown in one go, just before
/// the next painting. The surface may go first, after `Detach`; then the view does nothing.
class RichTextView : public QAbstractScrollArea, private SurfaceView {
 public:
  /// `layouter` outlives the view; the surface's breaker uses the same.
  RichTextView(DocumentSurface& surface, TextLayouter& layouter, ViewDoors doors, QWidget* parent);
  ~RichTextView() override;

  void Detach();
  bool IsAttached() const { return attached_; }
  DocumentSurface& Surface() const { return pane_.Surface(); }
  TextPane& Pane() { return pane_; }
  bool IsLocked() const { return doors_.locked && doors_.locked(); }

  /// How many times the document has changed under this view.
  int Edits() const { return edits_; }

  /// Runs an act of the user; the view may be detached when it returns.
  void Act(const std::function<void()>& act);
  /// Types, unless the box is locked.
  void Type(const QString& text);
  void ReleaseMouse(MouseButton button, QPointF at);
  /// Scrolls by pixels, as the user does.
  void ScrollBy(double pixels);
  void Zoom(double factor);
  /// Shows where a drop would go; empty for none.
  void DropCaret(std::optional<Position> position);
  void Composing(const Preedit& preedit);

  /// Brings scroll bars and screen up to what the surface has told.
  void Settle();
  /// Where what is laid out is not what the document holds; for tests.
  std::vector<std::string> Differences();

 protected:
  bool event(QEvent* event) override;
  bool HandleEvent(QEvent* event);
  bool viewportEvent(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void scrollContentsBy(int dx, int dy) override;
  void keyPressEvent(QKeyEvent* event) override;
  void inputMethodEvent(QInputMethodEvent* event) override;
  QVariant inputMethodQuery(Qt::InputMethodQuery query) const override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  bool focusNextPrevChild(bool) override { return false; }  // the Tab key types
  void timerEvent(QTimerEvent* event) override;
  void changeEvent(QEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dragMoveEvent(QDragMoveEvent* event) override;
  void dragLeaveEvent(QDragLeaveEvent* event) override;
  void dropEvent(QDropEvent* event) override;

 private:
  void DocumentChanged(const DocumentChange& change) override;
  void SelectionChanged() override;
  void WrapWidthChanged() override;
  void RevealCaret() override;
  int LinesPerPage() const override;
  std::optional<Line> ShownLine(Position position) override { return pane_.ShownLine(position); }

  void SettleSoon();
  void OfferSelection();
  void ShowGround();
  void ChooseFrame();
  PaintState State();
  void RestartBlinking();

  mutable TextPane pane_;
  ViewDoors doors_;
  ViewDamage damage_{pane_};
  ViewBars bars_{*this};
  ViewKeys keys_{*this};
  ViewMouse mouse_{*this};
  ViewDrop drop_{*this};
  ViewInput input_{*this};
  QBasicTimer blinking_;
  std::optional<Position> dropCaret_;
  QPointer<const QMimeData> offered_;  // what the desktop's selection is as long as it is ours
  int edits_ = 0;
  bool attached_ = true;
  bool caretLit_ = false;
  bool revealing_ = false;   // the caret is to be brought into view
  bool settleSoon_ = false;  // an event that settles is on its way
};

}  // namespace lumenote

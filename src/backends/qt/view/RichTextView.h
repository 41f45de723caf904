// The widget that shows a rich-text surface and receives the user's input.
#pragma once
#include <QAbstractScrollArea>
#include <QBasicTimer>
#include <QMimeData>
#include <QPointer>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "backends/qt/text/QtLayouter.h"
#include "backends/qt/toolkit/Spoken.h"
#include "backends/qt/view/Announcer.h"
#include "backends/qt/view/DragOut.h"
#include "backends/qt/view/DropEvents.h"
#include "backends/qt/view/SpellingMarks.h"
#include "backends/qt/view/ViewBars.h"
#include "backends/qt/view/ViewPainter.h"
#include "forms/controls/edits/ViewCallbacks.h"
#include "view/acts/ViewInput.h"
#include "view/acts/ViewKeys.h"
#include "view/acts/ViewMouse.h"
#include "view/pane/NoteView.h"

namespace lumenote {

/// Shows a `NoteView` with Qt: translates events and paints. The surface may be destroyed first,
/// after `Detach`; the widget is inert then.
class RichTextView : public QAbstractScrollArea, public Spoken, private ViewHost {
 public:
  /// `layouter`, shared with the surface's breaker, must outlive the view.
  RichTextView(DocumentSurface& surface, QtLayouter& layouter, ViewCallbacks callbacks,
               QWidget* parent);

  void Detach();
  bool IsAttached() const { return text_.IsAttached(); }
  bool IsLocked() const override { return callbacks_.locked && callbacks_.locked(); }
  bool TabLeaves() const override { return callbacks_.tabLeaves && callbacks_.tabLeaves(); }
  NoteView& Text() { return text_; }
  DocumentSurface& Surface() const { return text_.Surface(); }
  TextPane& Pane() { return text_.Pane(); }
  QtLayouter& Layouter() { return layouter_; }
  ViewInput& Input() { return input_; }

  /// From now on misspelt words are marked. `speller` must outlive the view.
  void CheckSpelling(Speller& speller, SpellingMarks::Learn learn);
  /// Null: words are not checked.
  const SpellingMarks* Spelling() const { return spelling_.get(); }
  /// Opens the menu that a click with the right button there opens.
  void OpenNoteMenu(PixelPoint at) { OpenMenu(at); }

  QAccessible::Role Role() const override { return QAccessible::EditableText; }
  QAccessibleInterface* MakeInterface(QWidget&) override;

  void Settle() { text_.Settle(); }
  std::vector<std::string> Differences() { return text_.Differences(); }

 protected:
  bool event(QEvent* event) override;
  bool HandleEvent(QEvent* event);
  bool viewportEvent(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void hideEvent(QHideEvent* event) override;
  void scrollContentsBy(int dx, int dy) override;
  void keyPressEvent(QKeyEvent* event) override;
  void keyReleaseEvent(QKeyEvent* event) override;
  void inputMethodEvent(QInputMethodEvent* event) override;
  QVariant inputMethodQuery(Qt::InputMethodQuery query) const override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  bool focusNextPrevChild(bool) override { return false; }  // Tab is typed
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
  // ViewHost
  void Act(const std::function<void()>& act) override;
  PointerManners Pointer() const override;
  void SettleSoon() override;
  void IdleSoon() override;
  void ShowScrolling() override { bars_.Sync(); }
  void ShowDamage(const Damage& damage) override;
  void Changed(const DocumentChange& change) override;
  void SelectionMoved() override;
  void DropComposition() override;
  void ShowPointer(PointerShape shape) override;
  void ScrollTimer(bool on) override;
  void Drag() override { drag_.Run(); }
  void OpenLink(std::u16string_view address) override;
  bool ChecksSpelling() const override { return spelling_ != nullptr; }
  void OpenSpelling() override { spelling_->Open(); }
  void OpenMenu(PixelPoint at) override { ReleaseMouse(MouseButton::Right, {at.x, at.y}); }

  void ReleaseMouse(MouseButton button, QPointF at);
  void PasteSelection(QPointF at);
  void OfferSelection();
  void ShowGround();
  void WorkIdly();
  void ChooseFrame();
  PaintState State();
  void ShowTip(const QHelpEvent& event);
  ViewMouse::Press PressOf(const QMouseEvent& event) const;

  QtLayouter& layouter_;
  ViewCallbacks callbacks_;
  mutable NoteView text_;
  ViewKeys keys_{text_};
  ViewMouse mouse_{text_};
  mutable ViewInput input_{text_};
  ViewBars bars_{*this};
  DragOut drag_{*this};
  DropEvents drop_{*this};
  std::unique_ptr<SpellingMarks> spelling_;  // null: words are not checked
  Announcer announcer_{*this};
  QBasicTimer blinking_;
  QBasicTimer scrolling_;
  QBasicTimer idle_;
  QPointer<const QMimeData> offered_;  // the desktop's selection while it is ours
};

}  // namespace lumenote

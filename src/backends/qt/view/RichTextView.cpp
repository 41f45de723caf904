#include "backends/qt/view/RichTextView.h"

#include <QApplication>
#include <QClipboard>
#include <QInputMethod>
#include <QPainter>
#include <QStyle>
#include <QStyleHints>
#include <QTextDocument>
#include <QToolTip>
#include <new>
#include <utility>

#include "backends/qt/toolkit/Keys.h"
#include "backends/qt/toolkit/MimeContent.h"
#include "backends/qt/toolkit/MouseButtons.h"
#include "backends/qt/toolkit/Pixels.h"
#include "backends/qt/toolkit/QtText.h"
#include "backends/qt/toolkit/Units.h"
#include "backends/qt/view/InputMethods.h"
#include "backends/qt/view/SelectionMime.h"
#include "view/acts/TextTips.h"

namespace lumenote {

namespace {

constexpr int kFramelessHeight = 20;  // a lower box gets no frame
constexpr double kMargin = 3;
constexpr double kWheelNotch = 120;
constexpr int kScrollInterval = 30;  // milliseconds
constexpr int kIdleTime = 20;        // milliseconds

QEvent::Type SettleEvent() {
  static const auto type = static_cast<QEvent::Type>(QEvent::registerEventType());
  return type;
}

}  // namespace

RichTextView::RichTextView(DocumentSurface& surface, QtLayouter& layouter, ViewCallbacks callbacks,
                           QWidget* parent)
    : QAbstractScrollArea(parent),
      layouter_(layouter),
      callbacks_(std::move(callbacks)),
      text_(surface, layouter, *this) {
  setFocusPolicy(Qt::StrongFocus);
  setAttribute(Qt::WA_InputMethodEnabled);
  setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
  viewport()->setAttribute(Qt::WA_OpaquePaintEvent);
  viewport()->setCursor(Qt::IBeamCursor);
  viewport()->setMouseTracking(true);
  viewport()->setAcceptDrops(true);
  setAcceptDrops(true);
  ShowGround();
}

void RichTextView::CheckSpelling(Speller& speller, SpellingMarks::Learn learn) {
  spelling_ = std::make_unique<SpellingMarks>(*this, speller, std::move(learn));
}

void RichTextView::Detach() {
  blinking_.stop();
  idle_.stop();
  text_.Detach();
}

// --- requests of the view

void RichTextView::Act(const std::function<void()>& act) {
  if (callbacks_.act)
    callbacks_.act(act);
  else
    act();
}

PointerManners RichTextView::Pointer() const {
  return {.dragDistance = static_cast<double>(QApplication::startDragDistance()),
          .doubleClickTime = static_cast<double>(QApplication::doubleClickInterval())};
}

void RichTextView::SettleSoon() {
  QCoreApplication::postEvent(this, new QEvent(SettleEvent()), Qt::HighEventPriority);
}

void RichTextView::IdleSoon() { idle_.start(kIdleTime, this); }

void RichTextView::ShowDamage(const Damage& damage) {
  if (const auto& shift = damage.shift) {
    const QRectF from(0, shift->top, viewport()->width(), shift->bottom - shift->top);
    const QRectF both = from.united(from.translated(0, shift->by));
    viewport()->scroll(0, static_cast<int>(shift->by), both.toRect());
  }
  QRegion region;
  for (const PixelRect& area : damage.areas) region += ToQRect(area).toRect();
  if (!region.isEmpty()) viewport()->update(region);
  OfferSelection();
}

void RichTextView::Changed(const DocumentChange& change) {
  announcer_.Changed(change);
  if (spelling_) spelling_->Changed();
}

void RichTextView::SelectionMoved() {
  announcer_.SelectionMoved();
  if (!hasFocus()) return;
  const int period = QGuiApplication::styleHints()->cursorFlashTime();
  if (period > 0) blinking_.start(period / 2, this);
  updateMicroFocus();
}

void RichTextView::DropComposition() {
  if (hasFocus()) QGuiApplication::inputMethod()->reset();
}

void RichTextView::ShowPointer(PointerShape shape) {
  constexpr Qt::CursorShape kCursors[] = {Qt::IBeamCursor, Qt::ArrowCursor, Qt::PointingHandCursor};
  viewport()->setCursor(kCursors[static_cast<int>(shape)]);
}

void RichTextView::OpenLink(std::u16string_view address) {
  if (callbacks_.link) callbacks_.link(address);
}

void RichTextView::ScrollTimer(bool on) {
  if (on)
    scrolling_.start(kScrollInterval, this);
  else
    scrolling_.stop();
}

void RichTextView::ReleaseMouse(MouseButton button, QPointF at) {
  if (!callbacks_.mouseUp) return;
  const QPointF corner = viewport()->pos() + at;
  callbacks_.mouseUp({button, {ToTwips(corner.x()), ToTwips(corner.y())}});
}

// Offers the selection to other programs, which paste it with the middle button.
void RichTextView::OfferSelection() {
  QClipboard* clipboard = QApplication::clipboard();
  if (offered_ || !hasFocus() || !clipboard->supportsSelection()) return;
  if (Surface().Selected().Length() == 0) return;
  auto* selection = new SelectionMime(*this);
  offered_ = selection;
  clipboard->setMimeData(selection, QClipboard::Selection);
}

// --- painting

PaintState RichTextView::State() {
  PaintState state{text_.Marks(), palette()};
  if (!isEnabled())
    state.palette.setCurrentColorGroup(QPalette::Disabled);
  else if (!hasFocus())
    state.palette.setCurrentColorGroup(QPalette::Inactive);
  return state;
}

void RichTextView::paintEvent(QPaintEvent* event) {
  if (!text_.IsSettled()) Settle();
  const PaintState state = State();
  QPainter painter(viewport());
  ViewPainter view(Pane(), layouter_, state);
  for (const QRect& area : event->region()) {
    painter.setClipRect(area);
    view.Paint(painter, area);
    if (spelling_) spelling_->Paint(painter, area);
  }
}

void RichTextView::ShowGround() {
  layouter_.styles.Ground(palette().color(QPalette::Base));
  text_.Restyle();
}

// --- scrolling and size

void RichTextView::resizeEvent(QResizeEvent*) {
  bars_.Choose(height());
  ChooseFrame();
  text_.Resize(
      {static_cast<double>(viewport()->width()), static_cast<double>(viewport()->height())});
}

// The text starts at the same position with and without a frame.
void RichTextView::ChooseFrame() {
  const bool frameless = height() < kFramelessHeight;
  setFrameShape(frameless ? QFrame::NoFrame : QFrame::StyledPanel);
  const int frame = style()->pixelMetric(QStyle::PM_DefaultFrameWidth, nullptr, this);
  Pane().Margin(kMargin + (frameless ? frame : 0));
}

void RichTextView::showEvent(QShowEvent*) { text_.Show(true); }

void RichTextView::hideEvent(QHideEvent*) { text_.Show(false); }

void RichTextView::scrollContentsBy(int dx, int dy) {
  if (IsAttached()) bars_.Follow(dx, dy);
}

void RichTextView::wheelEvent(QWheelEvent* event) {
  const QPointF notches = QPointF(event->angleDelta()) / kWheelNotch;
  if (event->modifiers() & Qt::ControlModifier) return text_.ZoomBy(notches.y());
  const QPointF pixels = event->pixelDelta().isNull()
                             ? notches * NoteView::kScrollStep * QApplication::wheelScrollLines()
                             : QPointF(event->pixelDelta());
  bars_.Turn(pixels.x(), pixels.y());
}

// --- keyboard

void RichTextView::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Menu) return keys_.OpenMenu();
  if (event->key() == Qt::Key_Control) mouse_.Control(true);
  const bool used = keys_.Press(StrokeOf(*event), FromQString(TypedText(*event)));
  const bool tab = event->key() == Qt::Key_Tab || event->key() == Qt::Key_Backtab;
  event->setAccepted(used || tab);  // else the window would move the focus once more
  if (!used && tab) QAbstractScrollArea::focusNextPrevChild(event->key() == Qt::Key_Tab);
}

void RichTextView::keyReleaseEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Control) mouse_.Control(false);
  QAbstractScrollArea::keyReleaseEvent(event);
}

void RichTextView::inputMethodEvent(QInputMethodEvent* event) {
  layouter_.composedFormats = FormatsOf(*event);
  input_.Take(MessageOf(*event));
  event->accept();
}

QVariant RichTextView::inputMethodQuery(Qt::InputMethodQuery query) const {
  return IsAttached() ? AnswerInput(const_cast<RichTextView&>(*this), query) : QVariant();
}

// --- focus and timers

void RichTextView::focusInEvent(QFocusEvent*) { text_.Focus(true); }

void RichTextView::focusOutEvent(QFocusEvent*) {
  blinking_.stop();
  text_.Focus(false);
}

void RichTextView::WorkIdly() {
  idle_.stop();
  text_.WorkIdly();
}

void RichTextView::timerEvent(QTimerEvent* event) {
  if (event->timerId() == blinking_.timerId())
    text_.Blink();
  else if (event->timerId() == scrolling_.timerId())
    mouse_.ScrollOn();
  else if (event->timerId() == idle_.timerId())
    WorkIdly();
  else
    QAbstractScrollArea::timerEvent(event);
}

// --- events

// Exceptions must not propagate through Qt. What could not be laid out or painted for lack of
// memory is shown later.
bool RichTextView::event(QEvent* event) {
  try {
    return HandleEvent(event);
  } catch (const std::bad_alloc&) {
    text_.Forget();
    return true;
  }
}

bool RichTextView::viewportEvent(QEvent* event) {
  try {
    if (!IsAttached()) return false;
    if (event->type() != QEvent::ToolTip) return QAbstractScrollArea::viewportEvent(event);
    ShowTip(static_cast<const QHelpEvent&>(*event));
    return true;
  } catch (const std::bad_alloc&) {
    text_.Forget();
    return true;
  }
}

bool RichTextView::HandleEvent(QEvent* event) {
  if (!IsAttached()) return QObject::event(event);
  if (event->type() == SettleEvent()) {
    Settle();
    return true;
  }
  if (event->type() == QEvent::ShortcutOverride) {
    const auto key = StrokeOf(static_cast<const QKeyEvent&>(*event));
    if (key && keys_.IsForEditing(*key)) event->accept();
  }
  return QAbstractScrollArea::event(event);
}

void RichTextView::changeEvent(QEvent* event) {
  QAbstractScrollArea::changeEvent(event);
  if (event->type() == QEvent::PaletteChange || event->type() == QEvent::EnabledChange)
    ShowGround();
}

void RichTextView::contextMenuEvent(QContextMenuEvent* event) { event->accept(); }

// --- mouse

ViewMouse::Press RichTextView::PressOf(const QMouseEvent& event) const {
  return {.at = ToPoint(event.position()),
          .time = static_cast<std::int64_t>(event.timestamp()),
          .extend = (event.modifiers() & Qt::ShiftModifier) != 0};
}

void RichTextView::mousePressEvent(QMouseEvent* event) {
  mouse_.Control(event->modifiers() & Qt::ControlModifier);
  if (event->button() == Qt::LeftButton) return mouse_.Down(PressOf(*event));
  if (text_.Complete() && event->button() == Qt::MiddleButton) PasteSelection(event->position());
}

void RichTextView::mouseDoubleClickEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return mousePressEvent(event);
  mouse_.DoubleClick(PressOf(*event));
}

void RichTextView::mouseMoveEvent(QMouseEvent* event) {
  mouse_.Control(event->modifiers() & Qt::ControlModifier);
  mouse_.Move(ToPoint(event->position()), event->buttons() & Qt::LeftButton);
}

void RichTextView::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton)
    mouse_.Up(ToPoint(event->position()));
  else
    mouse_.Cancel();
  if (IsAttached()) ReleaseMouse(ButtonOf(event->button()), event->position());
  const bool clicked = event->button() == Qt::LeftButton && event->modifiers() == Qt::NoModifier;
  if (spelling_ && clicked && Surface().Selected().Length() == 0)
    spelling_->Click(event->position());
}

// Long texts have lines only where the tip is rich text.
void RichTextView::ShowTip(const QHelpEvent& event) {
  const QString tip = ToQString(TipAt(Pane(), ToPoint(event.pos())));
  const QString text = tip.isEmpty() ? tip : Qt::convertFromPlainText(tip);
  const QRect near(event.pos() - QPoint(2, 2), QSize(4, 4));
  QToolTip::showText(event.globalPos(), text, viewport(), near);
}

// Pastes the desktop's selection at the mouse position.
void RichTextView::PasteSelection(QPointF at) {
  QClipboard* clipboard = QApplication::clipboard();
  if (IsLocked() || !clipboard->supportsSelection()) return;
  const QMimeData* data = clipboard->mimeData(QClipboard::Selection);
  if (data && HasMimeContent(*data)) drop_.Rules().Paste(ToPoint(at), ReadMime(*data));
}

void RichTextView::dragEnterEvent(QDragEnterEvent* event) { drop_.Move(*event); }

void RichTextView::dragMoveEvent(QDragMoveEvent* event) { drop_.Move(*event); }

void RichTextView::dragLeaveEvent(QDragLeaveEvent*) { drop_.Rules().Leave(); }

void RichTextView::dropEvent(QDropEvent* event) { drop_.Drop(*event); }

}  // namespace lumenote

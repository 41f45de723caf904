#include "backends/qt/view/RichTextView.h"

#include <QApplication>
#include <QClipboard>
#include <QPainter>
#include <QStyle>
#include <QStyleHints>
#include <algorithm>
#include <cmath>
#include <new>
#include <utility>

#include "backends/qt/toolkit/Keys.h"
#include "backends/qt/toolkit/QtText.h"
#include "backends/qt/toolkit/Units.h"
#include "backends/qt/view/SelectionMime.h"
#include "backends/qt/view/ViewAccessible.h"

namespace lumenote {

namespace {

constexpr int kFramelessHeight = 20;  // pixels; lower boxes have no frame
constexpr double kMargin = 3;
constexpr double kWheelLine = 20;  // pixels
constexpr double kZoomStep = 1.1;
constexpr double kLeastZoom = 0.2;
constexpr double kMostZoom = 5;
constexpr double kWheelNotch = 120;

QEvent::Type SettleEvent() {
  static const auto type = static_cast<QEvent::Type>(QEvent::registerEventType());
  return type;
}

}  // namespace

RichTextView::RichTextView(DocumentSurface& surface, TextLayouter& layouter, ViewDoors doors,
                           QWidget* parent)
    : QAbstractScrollArea(parent), pane_(surface, layouter), doors_(std::move(doors)) {
  UseViewAccessibility();
  setFocusPolicy(Qt::StrongFocus);
  setAttribute(Qt::WA_InputMethodEnabled);
  setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
  viewport()->setAttribute(Qt::WA_OpaquePaintEvent);
  viewport()->setCursor(Qt::IBeamCursor);
  viewport()->setMouseTracking(true);
  viewport()->setAcceptDrops(true);
  setAcceptDrops(true);
  ShowGround();
  surface.View(this);
}

RichTextView::~RichTextView() { Detach(); }

void RichTextView::Detach() {
  if (!attached_) return;
  attached_ = false;
  blinking_.stop();
  Surface().View(nullptr);
}

void RichTextView::Act(const std::function<void()>& act) {
  if (doors_.act)
    doors_.act(act);
  else
    act();
}

void RichTextView::Type(const QString& text) {
  if (IsLocked()) return;
  Act([&] { Surface().UserType(WithCrLf(FromQString(text))); });
}

void RichTextView::ReleaseMouse(MouseButton button, QPointF at) {
  if (!doors_.mouseUp) return;
  const QPointF corner = viewport()->pos() + at;
  doors_.mouseUp({button, {ToTwips(corner.x()), ToTwips(corner.y())}});
}

// --- what the surface tells

void RichTextView::DocumentChanged(const DocumentChange& change) {
  ++edits_;
  pane_.Cache().Changed(change);
  pane_.Scroll().Changed(change);
  damage_.DocumentChanged();
  if (!pane_.Layouter().preedit.text.isEmpty()) pane_.Composing({});
  const Document& document = pane_.Content();
  const bool reloaded = change.at == 0 && change.inserted == document.Length();
  if (reloaded) pane_.Scroll().Relaid();
  if (reloaded && Surface().Selected() == Selection{}) pane_.Scroll().ToStart();
  AnnounceChange(*this, change);
  SettleSoon();
}

void RichTextView::SelectionChanged() {
  if (hasFocus()) RestartBlinking();
  AnnounceSelection(*this);
  SettleSoon();
}

void RichTextView::WrapWidthChanged() {
  pane_.Rewrap();
  damage_.Everything();
  SettleSoon();
}

void RichTextView::RevealCaret() {
  revealing_ = true;
  SettleSoon();
}

int RichTextView::LinesPerPage() const { return pane_.LinesPerPage(); }

void RichTextView::Composing(const Preedit& preedit) {
  pane_.Composing(preedit);
  SettleSoon();
}

// --- bringing the screen up to date

void RichTextView::SettleSoon() {
  if (std::exchange(settleSoon_, true)) return;
  QCoreApplication::postEvent(this, new QEvent(SettleEvent()), Qt::HighEventPriority);
}

void RichTextView::Settle() {
  settleSoon_ = false;
  if (!attached_ || !isVisible()) return;
  if (std::exchange(revealing_, false)) pane_.Reveal(Surface().Caret());
  bars_.Sync();
  const QRegion region = damage_.Take(State());
  if (!region.isEmpty()) viewport()->update(region);
  const std::vector<ShownPiece> shown = pane_.Visible();
  pane_.Cache().Trim(shown.front().piece->from, shown.back().piece->to);
  OfferSelection();
}

// Other programs can paste what is selected here with the middle button.
void RichTextView::OfferSelection() {
  QClipboard* clipboard = QApplication::clipboard();
  if (offered_ || !hasFocus() || !clipboard->supportsSelection()) return;
  if (Surface().Selected().Length() == 0) return;
  auto* selection = new SelectionMime(*this, SelectionMime::Of::Then);
  offered_ = selection;
  clipboard->setMimeData(selection, QClipboard::Selection);
}

PaintState RichTextView::State() {
  PaintState state;
  state.selection = Surface().Selected();
  state.palette = palette();
  if (!isEnabled())
    state.palette.setCurrentColorGroup(QPalette::Disabled);
  else if (!hasFocus())
    state.palette.setCurrentColorGroup(QPalette::Inactive);
  if (caretLit_ && state.selection.Length() == 0) state.caret = pane_.CaretAt(Surface().Caret());
  if (dropCaret_) state.dropCaret = pane_.CaretAt(*dropCaret_);
  return state;
}

void RichTextView::paintEvent(QPaintEvent* event) {
  if (settleSoon_) Settle();
  const PaintState state = State();
  QPainter painter(viewport());
  ViewPainter view(pane_, state);
  for (const QRect& area : event->region()) {
    painter.setClipRect(area);
    view.Paint(painter, area);
  }
}

void RichTextView::ShowGround() {
  pane_.Layouter().styles.Ground(palette().color(QPalette::Base));
  pane_.Cache().Clear();
  damage_.Everything();
}

// --- scrolling and size

void RichTextView::resizeEvent(QResizeEvent*) {
  bars_.Choose(height());
  ChooseFrame();
  pane_.Resize(viewport()->size());
  Settle();
}

// The text begins at the same place with and without a frame.
void RichTextView::ChooseFrame() {
  const bool frameless = height() < kFramelessHeight;
  setFrameShape(frameless ? QFrame::NoFrame : QFrame::StyledPanel);
  const int frame = style()->pixelMetric(QStyle::PM_DefaultFrameWidth, nullptr, this);
  pane_.Margin(kMargin + (frameless ? frame : 0));
}

void RichTextView::showEvent(QShowEvent*) {
  damage_.Everything();
  Settle();
}

void RichTextView::scrollContentsBy(int dx, int dy) {
  if (attached_) bars_.Follow(dx, dy);
}

void RichTextView::ScrollBy(double pixels) {
  if (!attached_) return;
  pane_.Scroll().By(pixels);
  Settle();
}

void RichTextView::Zoom(double factor) {
  pane_.Zoom(std::clamp(factor, kLeastZoom, kMostZoom));
  damage_.Everything();
  SettleSoon();
}

void RichTextView::wheelEvent(QWheelEvent* event) {
  const QPointF notches = QPointF(event->angleDelta()) / kWheelNotch;
  if (event->modifiers() & Qt::ControlModifier)
    return Zoom(pane_.Zoom() * std::pow(kZoomStep, notches.y()));
  const QPointF pixels = event->pixelDelta().isNull()
                             ? notches * kWheelLine * QApplication::wheelScrollLines()
                             : QPointF(event->pixelDelta());
  bars_.Turn(pixels.x(), pixels.y());
}

void RichTextView::DropCaret(std::optional<Position> position) {
  dropCaret_ = position;
  SettleSoon();
}

// --- keyboard

void RichTextView::keyPressEvent(QKeyEvent* event) {
  const bool used = keys_.Press(*event);
  event->setAccepted(used);
  const bool tab = event->key() == Qt::Key_Tab || event->key() == Qt::Key_Backtab;
  if (!used && tab) QAbstractScrollArea::focusNextPrevChild(event->key() == Qt::Key_Tab);
}

void RichTextView::inputMethodEvent(QInputMethodEvent* event) {
  input_.Compose(*event);
  event->accept();
}

QVariant RichTextView::inputMethodQuery(Qt::InputMethodQuery query) const {
  return attached_ ? input_.Query(query) : QVariant();
}

// --- caret

void RichTextView::RestartBlinking() {
  caretLit_ = true;
  const int period = QGuiApplication::styleHints()->cursorFlashTime();
  if (period > 0) blinking_.start(period / 2, this);
  updateMicroFocus();
}

void RichTextView::focusInEvent(QFocusEvent*) {
  RestartBlinking();
  SettleSoon();
  viewport()->update();
}

void RichTextView::focusOutEvent(QFocusEvent*) {
  blinking_.stop();
  caretLit_ = false;
  SettleSoon();
  viewport()->update();
}

void RichTextView::timerEvent(QTimerEvent* event) {
  if (event->timerId() == blinking_.timerId()) {
    caretLit_ = !caretLit_;
    Settle();
  } else if (mouse_.IsTimer(event->timerId())) {
    mouse_.ScrollOn();
  } else {
    QAbstractScrollArea::timerEvent(event);
  }
}

// --- events

// Nothing may leave an event handler through the toolkit. What could not be laid out or painted for
// want of memory is shown when there is some again.
bool RichTextView::event(QEvent* event) {
  try {
    return HandleEvent(event);
  } catch (const std::bad_alloc&) {
    pane_.Cache().Clear();
    return true;
  }
}

bool RichTextView::viewportEvent(QEvent* event) {
  try {
    return attached_ && QAbstractScrollArea::viewportEvent(event);
  } catch (const std::bad_alloc&) {
    pane_.Cache().Clear();
    return true;
  }
}

bool RichTextView::HandleEvent(QEvent* event) {
  if (!attached_) return QObject::event(event);
  if (event->type() == SettleEvent()) {
    Settle();
    return true;
  }
  if (event->type() == QEvent::ShortcutOverride) {
    const auto key = StrokeOf(static_cast<const QKeyEvent&>(*event));
    if (key && IsEditingKey(*key)) event->accept();
  }
  return QAbstractScrollArea::event(event);
}

void RichTextView::changeEvent(QEvent* event) {
  QAbstractScrollArea::changeEvent(event);
  if (event->type() != QEvent::PaletteChange && event->type() != QEvent::EnabledChange) return;
  ShowGround();
  SettleSoon();
}

void RichTextView::contextMenuEvent(QContextMenuEvent* event) { event->accept(); }

void RichTextView::mousePressEvent(QMouseEvent* event) { mouse_.Press(*event); }

void RichTextView::mouseMoveEvent(QMouseEvent* event) { mouse_.Move(*event); }

void RichTextView::mouseReleaseEvent(QMouseEvent* event) { mouse_.Release(*event); }

void RichTextView::mouseDoubleClickEvent(QMouseEvent* event) { mouse_.DoubleClick(*event); }

void RichTextView::dragEnterEvent(QDragEnterEvent* event) { drop_.Move(*event); }

void RichTextView::dragMoveEvent(QDragMoveEvent* event) { drop_.Move(*event); }

void RichTextView::dragLeaveEvent(QDragLeaveEvent*) { drop_.Leave(); }

void RichTextView::dropEvent(QDropEvent* event) { drop_.Drop(*event); }

// --- tests

std::vector<std::string> RichTextView::Differences() {
  std::vector<std::string> differences;
  const auto differ = [&](const Piece& piece, const char* what) {
    differences.push_back("laid-out text from " + std::to_string(piece.from) + ": " + what);
  };
  Position last = 0;
  for (const auto& piece : pane_.Cache().Pieces()) {
    if (piece->from < last || piece->to > pane_.Content().Length()) differ(*piece, "place");
    last = piece->to;
    const PieceSpan span{.from = piece->from, .to = piece->to};
    const auto fresh = pane_.Layouter().LayOut(pane_.Content(), span);
    if (fresh->layout.text().left(piece->lines.back().end) !=
        piece->layout.text().left(piece->lines.back().end))
      differ(*piece, "text");
    if (fresh->lines.size() != piece->lines.size() || fresh->format != piece->format)
      differ(*piece, "lines");
  }
  return differences;
}

}  // namespace lumenote

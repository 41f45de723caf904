#include "backends/qt/windows/FormWindow.h"

#include <QApplication>
#include <QCloseEvent>
#include <QMouseEvent>
#include <QWindow>
#include <utility>

#include "backends/qt/text/FontNames.h"
#include "backends/qt/toolkit/Colours.h"
#include "backends/qt/toolkit/KeptFont.h"
#include "backends/qt/toolkit/Keys.h"
#include "backends/qt/toolkit/QtText.h"
#include "backends/qt/toolkit/Units.h"
#include "backends/qt/windows/OwnIcon.h"
#include "backends/qt/x11/X11Server.h"

namespace lumenote {
namespace {

/// Alt without other modifiers; the other key of that name, AltGr, types characters.
bool IsAlt(const QEvent& event) {
  const auto& key = static_cast<const QKeyEvent&>(event);
  return key.key() == Qt::Key_Alt && (key.modifiers() & ~Qt::AltModifier) == 0;
}

}  // namespace

FormWindow::FormWindow(Form& form, ActivationListener& listener)
    : SpokenWidget(nullptr, Qt::Window), form_(&form), listener_(listener) {
  setAttribute(Qt::WA_QuitOnClose, false);  // the host decides when its program ends
  setWindowIcon(OwnIcon());
  KeepFont(*this, ControlFont());
  content_ = new QWidget(this);
  content_->setAutoFillBackground(true);
  content_->setMouseTracking(true);
  content_->installEventFilter(this);
  bar_ = new MenuBarWidget(*this, form);
}

void FormWindow::Detach() {
  form_ = nullptr;
  bar_->Detach();
}

QAccessible::Role FormWindow::Role() const {
  return windowType() == Qt::Dialog ? QAccessible::Dialog : QAccessible::Window;
}

void FormWindow::Docked(QWidget* widget) { docked_ = widget; }

void FormWindow::LayOutParts() {
  if (!form_) return;
  const int top = form_->HasMenuBar() ? kBarHeight : 0;
  bar_->setVisible(form_->HasMenuBar());
  bar_->setGeometry(0, 0, width(), kBarHeight);
  content_->setGeometry(0, top, width(), height() - top);
  if (!docked_) return;
  docked_->setGeometry(0, height() - kBarHeight, width(), kBarHeight);
  docked_->raise();
}

void FormWindow::ShowSize() {
  const QSize size = WindowGeometry::ClientSize(form_->Bounds());
  form_->IsFixedSize() ? setFixedSize(size) : resize(size);
}

void FormWindow::ShowCaption() { setWindowTitle(ToQString(form_->Caption())); }

void FormWindow::ShowGeometry() {
  const QPoint corner = WindowGeometry::Corner(form_->Bounds());
  const bool elsewhere = corner != geometry_.AskedCorner();
  geometry_.Asked(form_->Bounds());
  if (elsewhere) move(corner);
  ShowSize();
  LayOutParts();
}

// The kind of window is fixed before the native window exists; later only the on-top state may
// change.
void FormWindow::ChooseKind() {
  const bool dialog = form_->OwnerWindow() || form_->IsModal();
  Qt::WindowFlags flags = dialog ? Qt::Dialog : Qt::Window;
  flags.setFlag(Qt::WindowStaysOnTopHint, form_->OnTop());
  if (!windowHandle()) setWindowFlags(flags);
  setWindowModality(form_->IsModal() ? Qt::ApplicationModal : Qt::NonModal);
}

void FormWindow::ShowVisible(QWidget* owner) {
  if (!form_->Visible()) return hide();
  ChooseKind();
  winId();
  windowHandle()->installEventFilter(this);
  windowHandle()->setTransientParent(owner ? owner->windowHandle() : HostWindow());
  ShowGeometry();
  show();
  if (!owner) KeepAboveHost();
}

// The toolkit tells the window manager about the owners of dialogs alone.
void FormWindow::KeepAboveHost() {
  const QWindow* host = windowHandle()->transientParent();
  const X11Server server;
  if (host && server.IsConnected())
    server.KeepAbove(static_cast<xcb_window_t>(winId()), static_cast<xcb_window_t>(host->winId()));
}

/// The host's native window, possibly of another toolkit; null for none.
QWindow* FormWindow::HostWindow() {
  const auto number = static_cast<WId>(form_->HostWindow());
  if (number == 0) return nullptr;
  if (const QWidget* widget = QWidget::find(number)) return widget->window()->windowHandle();
  hostWindow_.reset(QWindow::fromWinId(number));
  return hostWindow_.get();
}

void FormWindow::ShowOnTop() {
  if (!windowHandle()) return;  // done by `ChooseKind` then
  windowHandle()->setFlag(Qt::WindowStaysOnTopHint, form_->OnTop());
  overrideWindowFlags(windowFlags().setFlag(Qt::WindowStaysOnTopHint, form_->OnTop()));
}

QColor FormWindow::WantedGround() const {
  const std::int32_t colour = form_->BackColor();
  return colour < 0 ? QApplication::palette().color(QPalette::Window)
                    : FromBgr(static_cast<std::uint32_t>(colour));
}

void FormWindow::ShowBackColor() {
  QPalette colours = QApplication::palette();
  if (form_->BackColor() >= 0) {
    colours.setColor(QPalette::Window, WantedGround());
    colours.setColor(QPalette::WindowText, InkOn(WantedGround()));
  }
  content_->setPalette(colours);
}

void FormWindow::DragTo(float width, float height) {
  const Rect wanted{form_->Left(), form_->Top(), width, height};
  geometry_.Asked(wanted);
  resize(WindowGeometry::ClientSize(wanted));
  form_->UserResize(width, height);
}

bool FormWindow::event(QEvent* event) {
  if (form_ && event->type() == QEvent::WindowActivate) listener_.NativelyActive(*form_);
  if (form_ && event->type() == QEvent::ApplicationPaletteChange) ShowBackColor();
  if (form_ && event->type() == QEvent::ShortcutOverride) {
    const auto key = StrokeOf(static_cast<const QKeyEvent&>(*event));
    if (key && form_->HasShortcut(*key)) event->accept();
  }
  return QWidget::event(event);
}

// What reaches the window, before any widget. Where Alt and the mouse move windows, the desktop
// keeps the mouse to itself.
void FormWindow::HearNative(const QEvent& event) {
  switch (event.type()) {
    case QEvent::KeyPress:
      altAlone_ = IsAlt(event);
      return listener_.Used(*form_);
    case QEvent::KeyRelease:
      if (std::exchange(altAlone_, false) && IsAlt(event)) form_->UserMenuKey();
      return;
    case QEvent::MouseButtonPress:
      altAlone_ = false;
      HearMouse(static_cast<const QMouseEvent&>(event));
      return listener_.Used(*form_);
    case QEvent::MouseMove:
    case QEvent::MouseButtonRelease:
      return HearMouse(static_cast<const QMouseEvent&>(event));
    case QEvent::Wheel:
    case QEvent::Move:
    case QEvent::Resize:
    case QEvent::FocusOut:
      altAlone_ = false;
      return;
    default:
      return;
  }
}

// A release is told once the widgets have had it. One at the end of a drag does not come here: the
// next move shows that no button is held.
void FormWindow::HearMouse(const QMouseEvent& event) {
  const QPoint at = event.position().toPoint();
  if (event.type() == QEvent::MouseButtonPress) {
    if (!bar_->isVisible() || !bar_->geometry().contains(at)) Press();
  } else if (event.buttons() == Qt::NoButton && form_->IsPressed()) {
    QMetaObject::invokeMethod(this, &FormWindow::Release, Qt::QueuedConnection);
  }
}

void FormWindow::Press() {
  if (form_) form_->UserPress();
}

void FormWindow::Release() {
  if (form_) form_->UserRelease();
}

bool FormWindow::eventFilter(QObject* object, QEvent* event) {
  if (form_ && object == windowHandle()) HearNative(*event);
  if (form_ && object == content_ && event->type() == QEvent::MouseMove) {
    const QPointF at = static_cast<const QMouseEvent*>(event)->position();
    form_->UserMouseMove({MouseButton::None, {ToTwips(at.x()), ToTwips(at.y())}});
  }
  return QWidget::eventFilter(object, event);
}

void FormWindow::keyPressEvent(QKeyEvent* event) {
  const auto key = StrokeOf(*event);
  event->setAccepted(form_ && key && form_->UserKey(*key));
}

// The form decides. Once it has unloaded, the window must be closed, since the ends of the program
// and of the session wait for that.
void FormWindow::closeEvent(QCloseEvent* event) {
  if (form_) form_->UserClose();
  if (form_) listener_.Refused(*form_);
  event->setAccepted(!form_);
}

void FormWindow::resizeEvent(QResizeEvent*) {
  LayOutParts();
  if (!form_) return;
  if (const auto bounds = geometry_.Resized(size(), form_->Bounds()))
    form_->UserResize(bounds->width, bounds->height);
}

void FormWindow::moveEvent(QMoveEvent*) {
  if (!form_) return;
  if (const auto bounds = geometry_.Moved(pos(), form_->Bounds()))
    form_->UserMove(bounds->left, bounds->top);
}

}  // namespace lumenote

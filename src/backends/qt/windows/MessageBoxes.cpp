#include "backends/qt/windows/MessageBoxes.h"

#include <QCloseEvent>
#include <QDialogButtonBox>
#include <QEventLoop>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <memory>

#include "backends/qt/text/FontNames.h"
#include "backends/qt/toolkit/QtText.h"

namespace lumenote {

namespace {

using Answer = MessageBox::Answer;

QMessageBox::Icon IconOf(MessageBox::Icon icon) {
  switch (icon) {
    case MessageBox::Icon::None:
      return QMessageBox::NoIcon;
    case MessageBox::Icon::Critical:
      return QMessageBox::Critical;
    case MessageBox::Icon::Question:
      return QMessageBox::Question;
    case MessageBox::Icon::Exclamation:
      return QMessageBox::Warning;
    case MessageBox::Icon::Information:
      return QMessageBox::Information;
  }
  return QMessageBox::NoIcon;
}

QString TitleOf(const MessageBox& box) {
  if (!box.title.empty()) return ToQString(box.title);
  const QString application = QGuiApplication::applicationDisplayName();
  return application.isEmpty() ? QStringLiteral("Lumenote") : application;
}

/// Returns the focus to the asking window if that had it.
class NativeBox : public QMessageBox {
 public:
  NativeBox(const MessageBox& box, QWidget* over)
      : QMessageBox(IconOf(box.icon), TitleOf(box), ToLines(box.text), {}, over), over_(over) {
    setFont(ControlFont());
    setTextFormat(Qt::PlainText);
    setModal(true);
    if (box.buttons == MessageBox::Buttons::YesNo)
      AddYesAndNo();
    else
      setDefaultButton(addButton(QStringLiteral("OK"), AcceptRole));
    // Assistive programs would find the focus at the row of buttons, too.
    findChild<QDialogButtonBox*>()->setFocusProxy(nullptr);
  }

  bool AnsweredYes() const { return clickedButton() && clickedButton() == yes_; }
  /// Only an answer ends the wait, not an event that quits the program or one of Qt's loops.
  static void Await(const QPointer<NativeBox>& box) {
    box->show();
    QEventLoop loop;
    while (box && box->isVisible()) loop.processEvents(QEventLoop::WaitForMoreEvents);
  }

  void done(int result) override {
    const bool active = isActiveWindow();
    QMessageBox::done(result);
    if (active && over_ && over_->isVisible()) over_->activateWindow();
  }

 protected:
  void keyPressEvent(QKeyEvent* event) override {
    if (!yes_ || !event->matches(QKeySequence::Cancel)) QMessageBox::keyPressEvent(event);
  }
  void closeEvent(QCloseEvent* event) override {
    if (yes_)
      event->ignore();
    else
      QMessageBox::closeEvent(event);
  }

 private:
  void AddYesAndNo() {
    setWindowFlags(Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint);
    yes_ = addButton(QStringLiteral("&Oui"), YesRole);
    addButton(QStringLiteral("&Non"), NoRole);
    setDefaultButton(yes_);
  }

  QPushButton* yes_ = nullptr;  // of a Yes/No question
  QPointer<QWidget> over_;
};

/// A question delays the end of the program: repeats a request to quit once it is answered.
class QuitDeferrer : public QObject {
 public:
  QuitDeferrer() { QCoreApplication::instance()->installEventFilter(this); }
  ~QuitDeferrer() override {
    if (asked_) QMetaObject::invokeMethod(qApp, &QCoreApplication::quit, Qt::QueuedConnection);
  }

  bool eventFilter(QObject* object, QEvent* event) override {
    asked_ = asked_ || (object == qApp && event->type() == QEvent::Quit);
    return false;
  }

 private:
  bool asked_ = false;
};

}  // namespace

// The parent window may destroy the box while it is open.
Answer ShowMessageBox(const MessageBox& box, QWidget* over) {
  const bool question = box.buttons == MessageBox::Buttons::YesNo;
  const auto watch = question ? std::make_unique<QuitDeferrer>() : nullptr;
  const QPointer<NativeBox> shown = new NativeBox(box, over);
  NativeBox::Await(shown);
  const bool yes = shown && shown->AnsweredYes();
  delete shown;
  if (!question) return Answer::Ok;
  return yes ? Answer::Yes : Answer::No;
}

}  // namespace lumenote

#include "backends/qt/MessageBoxes.h"

#include <QGuiApplication>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>

#include "backends/qt/QtText.h"

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

}  // namespace

// The box may be destroyed with its window while it is up.
Answer ShowMessageBox(const MessageBox& box, QWidget* over) {
  const QPointer<QMessageBox> shown =
      new QMessageBox(IconOf(box.icon), TitleOf(box), ToLines(box.text), {}, over);
  shown->setTextFormat(Qt::PlainText);
  const bool ok = box.buttons == MessageBox::Buttons::Ok;
  QPushButton* first = shown->addButton(ok ? QStringLiteral("OK") : QStringLiteral("&Oui"),
                                        ok ? QMessageBox::AcceptRole : QMessageBox::YesRole);
  QPushButton* last = ok ? first : shown->addButton(QStringLiteral("&Non"), QMessageBox::NoRole);
  shown->setDefaultButton(first);
  shown->setEscapeButton(last);
  shown->exec();
  const bool accepted = shown && shown->clickedButton() == first;
  delete shown;
  if (ok) return Answer::Ok;
  return accepted ? Answer::Yes : Answer::No;
}

}  // namespace lumenote

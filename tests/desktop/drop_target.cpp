// Another program that text can be dropped on. usage: drop_target move|copy|refuse|late [top]
//
// Its window "Cible", always above the others with "top", takes what is dropped as a move or as a
// copy, refuses it, or ("late") refuses it only when it has fallen. Writes "over" whenever it is
// asked, and one line a drop: what it got as text, a blank, as RTF, both between slashes and with
// line ends as "\n".
#include <QApplication>
#include <QDropEvent>
#include <QMimeData>
#include <QWidget>
#include <iostream>

namespace {

std::string OnOneLine(QByteArray text) {
  return "/" + text.replace("\r", "").replace("\n", "\\n").toStdString() + "/";
}

class Target : public QWidget {
 public:
  explicit Target(QString manner) : manner_(std::move(manner)) {
    setAcceptDrops(true);
    setWindowTitle(QStringLiteral("Cible"));
    setGeometry(40, 640, 400, 200);
  }

 protected:
  void dragEnterEvent(QDragEnterEvent* event) override { Answer(*event); }
  void dragMoveEvent(QDragMoveEvent* event) override { Answer(*event); }
  void dropEvent(QDropEvent* event) override {
    Choose(*event);
    const QMimeData& data = *event->mimeData();
    std::cout << OnOneLine(data.text().toUtf8()) << " " << OnOneLine(data.data("text/rtf")) << " "
              << OnOneLine(data.data("text/html")) << std::endl;
    if (manner_ == QLatin1String("late")) event->ignore();
  }

 private:
  void Answer(QDropEvent& event) const {
    Choose(event);
    std::cout << "over" << std::endl;
  }
  void Choose(QDropEvent& event) const {
    event.setDropAction(manner_ == QLatin1String("copy") ? Qt::CopyAction : Qt::MoveAction);
    event.setAccepted(manner_ != QLatin1String("refuse"));
  }

  QString manner_;
};

}  // namespace

int main(int argc, char** argv) {
  const QApplication application(argc, argv);
  Target target(QString::fromLocal8Bit(argc > 1 ? argv[1] : "move"));
  target.setWindowFlag(Qt::WindowStaysOnTopHint, argc > 2);
  target.show();
  return QApplication::exec();
}

// Another program that text can be dropped on. usage: drop_target move|copy|refuse|late [top]
//                                                     drop_target offer IMAGE
//
// The second form puts an image in JPEG on the clipboard, and its file is dragged from the window.
// Its window "Cible", always above the others with "top", takes what is dropped as a move or as a
// copy, refuses it, or ("late") refuses it only when it has fallen. Writes "over" whenever it is
// asked, and one line a drop: what it got as text, RTF and HTML, each between slashes and with line
// ends as "\n", and the size of a JPEG.
#include <QApplication>
#include <QClipboard>
#include <QDrag>
#include <QDropEvent>
#include <QFile>
#include <QMimeData>
#include <QUrl>
#include <QWidget>
#include <iostream>
#include <string_view>

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

  /// What a note may take.
  void Offer(const QString& image) {
    image_ = QUrl::fromLocalFile(image);
    QFile file(image);
    file.open(QIODevice::ReadOnly);
    auto* data = new QMimeData;
    data->setData(QStringLiteral("image/jpeg"), file.readAll());
    QGuiApplication::clipboard()->setMimeData(data);
  }

 protected:
  void mousePressEvent(QMouseEvent*) override {
    if (image_.isEmpty()) return;
    auto* data = new QMimeData;
    data->setUrls({image_});
    auto* drag = new QDrag(this);
    drag->setMimeData(data);
    drag->exec(Qt::CopyAction | Qt::MoveAction, Qt::MoveAction);
    std::cout << "dragged" << std::endl;
  }
  void dragEnterEvent(QDragEnterEvent* event) override { Answer(*event); }
  void dragMoveEvent(QDragMoveEvent* event) override { Answer(*event); }
  void dropEvent(QDropEvent* event) override {
    Choose(*event);
    const QMimeData& data = *event->mimeData();
    std::cout << OnOneLine(data.text().toUtf8()) << " " << OnOneLine(data.data("text/rtf")) << " "
              << OnOneLine(data.data("text/html"));
    if (data.hasFormat("image/jpeg")) std::cout << " " << data.data("image/jpeg").size();
    std::cout << std::endl;
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
  QUrl image_;
};

}  // namespace

int main(int argc, char** argv) {
  const QApplication application(argc, argv);
  Target target(QString::fromLocal8Bit(argc > 1 ? argv[1] : "move"));
  const bool offers = argc > 2 && argv[1] == std::string_view("offer");
  if (offers) target.Offer(QString::fromLocal8Bit(argv[2]));
  target.setWindowFlag(Qt::WindowStaysOnTopHint, argc > 2 && !offers);
  target.show();
  return QApplication::exec();
}

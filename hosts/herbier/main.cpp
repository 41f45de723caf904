// A small herbarium: a host as a botanist would have it.
//   usage: herbier [DATABASE]            opens it, or creates it with a few taxa
//          herbier --capture PNG [DATABASE]   draws the window instead
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QMessageBox>
#include <QPixmap>
#include <QStandardPaths>
#include <iostream>

#include "Window.h"

namespace {

/// In the user's own data, unless an argument says where.
QString DatabaseFile(const QStringList& arguments) {
  if (!arguments.isEmpty()) return QFileInfo(arguments.first()).absoluteFilePath();
  return QStandardPaths::writableLocation(QStandardPaths::AppDataLocation) + "/herbier.sqlite";
}

/// Beside a new database lies the list that mends what a scanner misread.
void PutCorrections(const QString& folder) {
  QDir().mkpath(folder);
  const QString list = folder + "/ListCorr.txt";
  if (QFile::copy(":/ListCorr.txt", list))
    QFile::setPermissions(list, QFile::ReadOwner | QFile::WriteOwner);
}

}  // namespace

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  QApplication::setApplicationName("herbier");
  QStringList arguments = QApplication::arguments().mid(1);
  const bool capture = arguments.value(0) == "--capture";
  const QString picture = capture ? arguments.value(1) : QString();
  if (capture) arguments = arguments.mid(2);
  const QString file = DatabaseFile(arguments);
  const QString folder = QFileInfo(file).path();
  PutCorrections(folder);
  try {
    Database base(file);
    Window window(base, folder);
    window.show();
    if (capture) return window.grab().save(picture) ? 0 : 1;
    return QApplication::exec();
  } catch (const DatabaseError& error) {
    std::cerr << "herbier : " << file.toStdString() << " : " << error.what() << "\n";
    return 1;
  }
}

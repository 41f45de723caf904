#include "backends/qt/QtClipboard.h"

#include <QClipboard>
#include <QGuiApplication>

#include "backends/qt/toolkit/MimeContent.h"

namespace lumenote {

ClipboardContent QtClipboard::Get() const {
  const QMimeData* data = QGuiApplication::clipboard()->mimeData();
  return data ? ReadMime(*data) : ClipboardContent{};
}

bool QtClipboard::HasContent() const {
  const QMimeData* data = QGuiApplication::clipboard()->mimeData();
  return data && HasMimeContent(*data);
}

void QtClipboard::Set(const ClipboardContent& content) {
  QGuiApplication::clipboard()->setMimeData(WriteMime(content).release());
}

void QtClipboard::Clear() { QGuiApplication::clipboard()->clear(); }

}  // namespace lumenote

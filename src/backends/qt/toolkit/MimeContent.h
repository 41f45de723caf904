// Text and RTF as desktop programs exchange them.
#pragma once
#include <QMimeData>
#include <memory>

#include "platform/Clipboard.h"

namespace lumenote {

/// Prefers RTF. Line ends become CR LF; HTML alone yields its plain text.
ClipboardContent ReadMime(const QMimeData& data);
/// Whether `ReadMime` would return anything.
bool HasMimeContent(const QMimeData& data);
/// RTF under each of its type names, and the text with LF line ends.
std::unique_ptr<QMimeData> WriteMime(const ClipboardContent& content);

}  // namespace lumenote

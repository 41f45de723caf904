// Text, RTF and HTML as desktop programs exchange them.
#pragma once
#include <QMimeData>
#include <memory>

#include "platform/Clipboard.h"

namespace lumenote {

/// Line ends of the text become CR LF; where there is HTML alone, its plain text is text, too.
ClipboardContent ReadMime(const QMimeData& data);
/// Whether `ReadMime` would return anything.
bool HasMimeContent(const QMimeData& data);
/// RTF under each of its type names, HTML, and the text with LF line ends.
std::unique_ptr<QMimeData> WriteMime(const ClipboardContent& content);

}  // namespace lumenote

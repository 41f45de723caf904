// Text and RTF as programs hand them to each other on the desktop.
#pragma once
#include <QMimeData>
#include <memory>

#include "platform/Clipboard.h"

namespace lumenote {

/// RTF first; any line end becomes CR LF; HTML alone gives its plain text.
ClipboardContent ReadMime(const QMimeData& data);
/// Whether `ReadMime` would give anything.
bool HasMimeContent(const QMimeData& data);
/// RTF under each of its names; the text with line feeds.
std::unique_ptr<QMimeData> WriteMime(const ClipboardContent& content);

}  // namespace lumenote

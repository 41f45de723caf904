// Text, RTF, HTML and images as desktop programs exchange them.
#pragma once
#include <QMimeData>
#include <memory>

#include "platform/Clipboard.h"

namespace lumenote {

/// Line ends of the text become CR LF; where there is HTML alone, its plain text is text, too.
/// Files that are images come as images, and so does an image that nothing richer accompanies.
ClipboardContent ReadMime(const QMimeData& data);
/// Whether `ReadMime` could return anything, without transferring it.
bool HasMimeContent(const QMimeData& data);
/// RTF under each of its type names, HTML, the text with LF line ends, and the first image.
std::unique_ptr<QMimeData> WriteMime(const ClipboardContent& content);

}  // namespace lumenote

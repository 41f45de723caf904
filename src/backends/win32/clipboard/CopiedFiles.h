// Files as programs copy and drag them.
#pragma once
#include <string>
#include <vector>

#include "backends/win32/system/System.h"
#include "platform/Clipboard.h"

namespace lumenote {

/// The paths in memory of the format CF_HDROP; none if it is null.
std::vector<std::wstring> PathsIn(HGLOBAL files);
/// One path a line.
std::u16string LinesOf(const std::vector<std::wstring>& paths);
/// The files, if all of them are images: in PNG or JPEG, what other formats become, too; or that
/// they are too large. Else empty.
ClipboardContent ImagesInFiles(const std::vector<std::wstring>& paths);

}  // namespace lumenote

#include "backends/win32/toolkit/drawing/FontFamilies.h"

#include <algorithm>
#include <new>

#include "backends/win32/toolkit/drawing/Gdi.h"

namespace lumenote {
namespace {

using Visitor = std::function<bool(const LOGFONTW&)>;

int CALLBACK Visit(const LOGFONTW* font, const TEXTMETRICW*, DWORD, LPARAM visitor) {
  try {
    return (*reinterpret_cast<const Visitor*>(visitor))(*font) ? 1 : 0;
  } catch (const std::bad_alloc&) {
    return 0;  // must not pass through the system
  }
}

}  // namespace

void ForEachFont(HDC device, std::u16string_view family, const Visitor& visit) {
  LOGFONTW wanted = {};
  wanted.lfCharSet = DEFAULT_CHARSET;
  std::copy_n(family.begin(), std::min<std::size_t>(family.size(), LF_FACESIZE - 1),
              wanted.lfFaceName);
  EnumFontFamiliesExW(device, &wanted, Visit, reinterpret_cast<LPARAM>(&visit), 0);
}

bool HasFamily(std::u16string_view family) {
  bool found = false;
  ForEachFont(DcScope(nullptr).Get(), family, [&](const LOGFONTW&) {
    found = true;
    return false;
  });
  return found;
}

}  // namespace lumenote

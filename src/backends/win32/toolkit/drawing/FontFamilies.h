// The families that the system has.
#pragma once
#include <functional>
#include <string_view>

#include "backends/win32/system/System.h"

namespace lumenote {

/// Goes through the fonts of a device: all of them, or those of one family. Stops when `visit`
/// returns false.
void ForEachFont(HDC device, std::u16string_view family,
                 const std::function<bool(const LOGFONTW& font)>& visit);

/// Whether a screen can show text in that family.
bool HasFamily(std::u16string_view family);

}  // namespace lumenote

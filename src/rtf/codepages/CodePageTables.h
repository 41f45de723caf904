// The upper halves of the single-byte code pages.
#pragma once

namespace lumenote {

/// 128 units for the bytes 0x80 to 0xFF of a page, or null when the page is not known here.
const char16_t* UpperHalf(int page);

}  // namespace lumenote

// The upper halves of the single-byte code pages.
#pragma once

namespace lumenote {

/// The 128 units of bytes 0x80 to 0xFF; null for a page that is not in the table.
const char16_t* UpperHalf(int page);

}  // namespace lumenote

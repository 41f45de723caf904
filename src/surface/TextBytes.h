// Plain-text files and note texts as bytes.
#pragma once
#include <string>
#include <string_view>

namespace lumenote {

/// The text of a file: UTF-8 or UTF-16 behind a byte order mark, which is dropped, else code page
/// 1252.
std::u16string DecodePlainText(std::string_view bytes);

/// RTF source as it travels in strings, one byte a unit. On the way back a unit beyond a byte is
/// taken by its code page 1252.
std::u16string UnitsOfBytes(std::string_view bytes);
std::string BytesOfUnits(std::u16string_view units);

}  // namespace lumenote

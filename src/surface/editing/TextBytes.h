// RTF source as text and as bytes.
#pragma once
#include <string>
#include <string_view>

namespace lumenote {

/// RTF source as it travels in strings, one byte a unit. On the way back a unit beyond a byte is
/// taken by its code page 1252, and one that has no byte there becomes an escape of RTF.
std::u16string UnitsOfBytes(std::string_view bytes);
std::string BytesOfUnits(std::u16string_view units);
/// RTF source that is a text like any other: each character by its code page 1252, or as an escape.
std::string BytesOfSource(std::u16string_view source);

}  // namespace lumenote

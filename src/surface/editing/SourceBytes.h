// RTF source as a string and as bytes.
#pragma once
#include <string>
#include <string_view>

namespace lumenote {

/// RTF source travels in strings with one byte per unit. On the way back a unit above 255 becomes
/// its byte in code page 1252, or an RTF escape if it has none.
std::u16string WidenSource(std::string_view bytes);
std::string NarrowSource(std::u16string_view units);
/// For RTF source that is ordinary text: each character becomes its byte in code page 1252, or an
/// escape.
std::string EncodeSource(std::u16string_view source);

}  // namespace lumenote

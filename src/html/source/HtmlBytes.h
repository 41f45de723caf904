// HTML as bytes.
#pragma once
#include <string>
#include <string_view>

namespace lumenote {

/// The text of a file: in the encoding of its byte order mark, else in that which a <meta> near its
/// beginning states, if it is known, else in UTF-8 if it is valid, else in code page 1252.
std::u16string DecodeHtml(std::string_view bytes);

}  // namespace lumenote

// The labels of the encoding standard.
#pragma once
#include <string_view>

namespace lumenote {

/// The code page of a charset by any of its labels, in small letters; 0 for unknown ones and for
/// the two that no page has (ISO-2022-JP and the replacement encodings).
int PageOfCharset(std::string_view label);

}  // namespace lumenote

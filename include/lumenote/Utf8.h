// Conversions for hosts that keep UTF-8; the component's strings are UTF-16.
#pragma once
#include <string>
#include <string_view>

namespace lumenote {

/// Invalid sequences become U+FFFD; never fails.
std::string ToUtf8(std::u16string_view text);
/// Invalid sequences become U+FFFD; never fails.
std::u16string FromUtf8(std::string_view bytes);

}  // namespace lumenote

// Native paths as the system's calls take them.
#pragma once
#include <string>
#include <string_view>

namespace lumenote {

std::wstring ToWide(std::u16string_view text);
std::u16string FromWide(std::wstring_view text);

/// A native path for a call of the system, however long it is.
std::wstring SystemPath(const std::string& native);
/// The native path of what such a call returned.
std::string NativePath(std::wstring_view path);

}  // namespace lumenote

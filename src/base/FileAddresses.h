// Addresses of files, "file:...".
#pragma once
#include <string>
#include <string_view>
#include <vector>

namespace lumenote {

/// The absolute paths on this machine, in UTF-8, that an address may stand for: programs differ in
/// what they cut off at `?` and `#`. Empty for other addresses, those of other machines among them.
std::vector<std::string> PathsOf(std::u16string_view address);
/// Whether opening a file of that name may run it or reach another machine; also if the name,
/// having no extension, does not tell.
bool RunsWhenOpened(std::string_view path);

}  // namespace lumenote

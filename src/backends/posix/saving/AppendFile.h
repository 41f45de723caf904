// Appends lines to a file that other programs append to as well.
#pragma once
#include <string>
#include <string_view>
#include <sys/types.h>

namespace lumenote {

/// See `Files::AppendLines`. The path is native; links are followed. A new file gets `newMode` less
/// the umask.
void AppendLinesTo(const std::string& path, std::string_view lines, mode_t newMode);

}  // namespace lumenote

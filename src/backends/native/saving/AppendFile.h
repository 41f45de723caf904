// Appends lines to a file that other programs append to as well.
#pragma once
#include <string>
#include <string_view>

namespace lumenote {

/// See `Files::AppendLines`. The path is native; links are followed.
void AppendLinesTo(const std::string& path, std::string_view lines);

}  // namespace lumenote

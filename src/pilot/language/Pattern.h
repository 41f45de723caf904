// Regular expressions over a printed line.
#pragma once
#include <string_view>

namespace lumenote {

/// Whether the ECMAScript regular expression matches anywhere in the line. Both are UTF-8 and
/// matched by character. Raises `ScriptError` for an invalid expression.
bool Occurs(std::string_view regex, std::string_view line);

}  // namespace lumenote

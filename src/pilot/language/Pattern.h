// Regular expressions over a printed line.
#pragma once
#include <string_view>

namespace lumenote {

/// Whether the ECMAScript regular expression matches somewhere in the line; both are UTF-8, and a
/// character is one whatever its bytes. Raises `ScriptError` for what is no regular expression.
bool Occurs(std::string_view regex, std::string_view line);

}  // namespace lumenote

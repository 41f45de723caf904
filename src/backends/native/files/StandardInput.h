// A program's standard input.
#pragma once
#include <string>

namespace lumenote {

/// All that is left of it. Raises PathAccess (75) if any of that cannot be read; streams would take
/// an error for the end.
std::string ReadStandardInput();

}  // namespace lumenote

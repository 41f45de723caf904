// The shell's special folders.
#pragma once
#include <string>

namespace lumenote {

/// The shell's own numbers.
enum class SpecialFolder { Documents = 5, LocalData = 28, Programs = 38 };

/// Native, without a trailing separator; empty on failure.
std::string ShellFolder(SpecialFolder folder);

}  // namespace lumenote

// The machine-wide registry of this system.
#pragma once
#include <memory>

#include "platform/Registry.h"

namespace lumenote {

/// On POSIX an `IniRegistry` over files that an administrator or the user writes.
std::unique_ptr<Registry> MakeMachineRegistry();

}  // namespace lumenote

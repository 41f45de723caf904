// The temporary file that a save writes beside its target.
#pragma once
#include <string>
#include <sys/types.h>

#include "backends/posix/files/Descriptor.h"

namespace lumenote {

/// Makes a new, locked file in the folder of `target` and tells its name; the mode is less the
/// process's mask. Files of this kind that a dead save of the same target left behind are removed:
/// the system lets go of the lock whatever way their owner ended, so no living save loses one.
/// What is returned holds the lock; it is not open, with errno set, when no file can be made. All
/// paths are native.
Descriptor CreateBeside(const std::string& target, mode_t mode, std::string& name);

}  // namespace lumenote

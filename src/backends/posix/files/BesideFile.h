// The temporary file that a save writes beside its target.
#pragma once
#include <string>
#include <sys/types.h>

#include "backends/posix/files/Descriptor.h"

namespace lumenote {

/// Creates a new, locked file in the folder of `target` and sets its name; the mode is reduced by
/// the umask. Removes such files that dead saves of the same target left behind; a lock tells them
/// apart, since the system releases it however its owner ends. The result holds the lock; it is not
/// open, with errno set, if no file can be created. All paths are native.
Descriptor CreateBeside(const std::string& target, mode_t mode, std::string& name);

}  // namespace lumenote

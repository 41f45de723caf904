// The temporary file that a save writes beside its target.
#pragma once
#include <string>

#include "backends/native/files/OpenFile.h"
#include "platform/Files.h"

namespace lumenote {

/// Makes a new, locked file in the folder of `target` and sets its name. Removes such files that
/// dead saves of the same target left behind; a lock tells them apart, since the system releases it
/// however its owner ends. The result holds the lock; if no file can be made it is not open, and
/// `LastError` tells why. All paths are native, `target` is absolute.
OpenFile CreateBeside(const std::string& target, Permissions permissions, std::string& name);

}  // namespace lumenote

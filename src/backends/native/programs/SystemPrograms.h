// The programs of this system.
#pragma once
#include <memory>

#include "backends/native/folders/DrivePaths.h"
#include "platform/Processes.h"

namespace lumenote {

/// Where the desktop is not asked about windows, programs are only known by their processes.
std::unique_ptr<Processes> MakeSystemPrograms(DrivePaths drives);

}  // namespace lumenote

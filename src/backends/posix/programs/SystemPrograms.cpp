#include "backends/native/programs/SystemPrograms.h"

#include "backends/posix/programs/PosixProcesses.h"

namespace lumenote {

std::unique_ptr<Processes> MakeSystemPrograms(DrivePaths drives) {
  return std::make_unique<PosixProcesses>(std::move(drives));
}

}  // namespace lumenote

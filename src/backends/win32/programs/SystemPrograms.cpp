#include "backends/native/programs/SystemPrograms.h"

#include "backends/win32/programs/TopWindows.h"
#include "backends/win32/programs/WinProcesses.h"

namespace lumenote {

std::unique_ptr<Processes> MakeSystemPrograms(DrivePaths drives) {
  static TopWindows windows;
  return std::make_unique<WinProcesses>(std::move(drives), windows);
}

}  // namespace lumenote

// Where programs are installed.
#pragma once
#include <string>
#include <utility>

#include "backends/native/folders/DrivePaths.h"
#include "platform/ProgramFolders.h"

namespace lumenote {

/// On POSIX programs are links in the folder Program Files of drive C:. The component's folder is
/// that of its library or, if linked statically, of the program.
class NativeProgramFolders : public ProgramFolders {
 public:
  explicit NativeProgramFolders(DrivePaths drives) : drives_(std::move(drives)) {}

  std::u16string Programs() const override;
  std::u16string Component() const override;

 private:
  DrivePaths drives_;
};

}  // namespace lumenote

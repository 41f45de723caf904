// Where programs are installed on a POSIX system.
#pragma once
#include <string>
#include <utility>

#include "backends/posix/folders/DrivePaths.h"
#include "platform/ProgramFolders.h"

namespace lumenote {

/// Programs are links in the folder Program Files of drive C:. The component's folder is that of
/// its library or, if linked statically, of the program.
class PosixProgramFolders : public ProgramFolders {
 public:
  explicit PosixProgramFolders(DrivePaths drives) : drives_(std::move(drives)) {}

  std::u16string Programs() const override { return u"C:\\Program Files"; }
  std::u16string Component() const override;

 private:
  DrivePaths drives_;
};

/// Fixed folders, for sandboxes.
class FixedProgramFolders : public ProgramFolders {
 public:
  std::u16string Programs() const override { return u"C:\\Program Files"; }
  std::u16string Component() const override { return u"C:\\Lumenote"; }
};

}  // namespace lumenote

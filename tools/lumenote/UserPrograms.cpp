// Looks up programs as the editor does.
#include "UserPrograms.h"

#include "Command.h"
#include "backends/posix/folders/PosixFolders.h"
#include "backends/posix/folders/PosixProgramFolders.h"
#include "backends/posix/saving/PosixFiles.h"
#include "backends/posix/settings/IniRegistry.h"
#include "base/RuntimeError.h"

namespace lumenote::tool {
namespace {

/// A file system in which every program exists at the first place searched.
class EveryFile : public PosixFiles {
 public:
  using PosixFiles::PosixFiles;
  bool Exists(std::u16string_view) const override { return true; }
};

ProgramTable LookUp(const DrivePaths& drives, const Files& files) {
  const FixedFolders noFolders(u"", u"");
  const PosixProgramFolders programs(drives);
  const IniRegistry registry;
  return ChercherApplis({files, noFolders, u"", programs, registry});
}

}  // namespace

ProgramTable InstalledPrograms(const DrivePaths& drives) {
  return LookUp(drives, PosixFiles(drives));
}

ProgramTable FirstCandidates(const DrivePaths& drives) { return LookUp(drives, EveryFile(drives)); }

std::filesystem::path NativePath(const DrivePaths& drives, std::u16string_view path) {
  try {
    return drives.ToNative(path);
  } catch (const RuntimeError& error) {
    throw Failure(std::string("lecteur C: : ") + error.what());
  }
}

}  // namespace lumenote::tool

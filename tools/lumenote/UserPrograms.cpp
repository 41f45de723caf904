// Looks up programs as the editor does.
#include "UserPrograms.h"

#include "Command.h"
#include "backends/headless/NoFiles.h"
#include "backends/native/folders/FixedFolders.h"
#include "backends/native/folders/NativeProgramFolders.h"
#include "backends/native/saving/NativeFiles.h"
#include "backends/native/settings/MachineRegistry.h"
#include "base/RuntimeError.h"

namespace lumenote::tool {
namespace {

/// A file system in which every program exists at the first place searched.
class EveryFile : public NoFiles {
 public:
  bool Exists(std::u16string_view) const override { return true; }
};

ProgramTable LookUp(const DrivePaths& drives, const Files& files) {
  const FixedFolders noFolders(u"", u"");
  const NativeProgramFolders programs(drives);
  return ChercherApplis({files, noFolders, u"", programs, *MakeMachineRegistry()});
}

}  // namespace

ProgramTable InstalledPrograms(const DrivePaths& drives) {
  return LookUp(drives, NativeFiles(drives));
}

ProgramTable FirstCandidates(const DrivePaths& drives) { return LookUp(drives, EveryFile()); }

std::string NativePath(const DrivePaths& drives, std::u16string_view path) {
  try {
    return drives.ToNative(path);
  } catch (const RuntimeError& error) {
    throw Failure(std::string("lecteur C: : ") + error.what());
  }
}

}  // namespace lumenote::tool

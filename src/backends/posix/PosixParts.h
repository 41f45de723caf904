// What a platform of this system consists of, whatever its windows are.
#pragma once
#include "backends/native/folders/DrivePaths.h"
#include "backends/native/folders/NativeProgramFolders.h"
#include "backends/native/saving/NativeFiles.h"
#include "backends/native/settings/IniRegistry.h"
#include "backends/native/settings/IniSettings.h"
#include "backends/native/state/NativeStateFolder.h"
#include "backends/posix/folders/UserFolders.h"

namespace lumenote {

/// The user's own files and settings.
struct PosixParts {
  DrivePaths drives = DrivePaths::OfUser();
  NativeStateFolder state{NativeStateFolder::OfUser(), drives};
  NativeFiles files{drives, &state};
  IniSettings settings{SettingsFile()};
  IniRegistry registry{RegistryFiles()};
  NativeProgramFolders programFolders{drives};
};

}  // namespace lumenote

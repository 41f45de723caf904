// The external programs of this user.
#pragma once
#include <filesystem>

#include "backends/posix/folders/DrivePaths.h"
#include "extapps/ProgramTable.h"

namespace lumenote::tool {

/// What the editor finds now.
ProgramTable InstalledPrograms(const DrivePaths& drives);
/// Where the editor looks for each program first, whether it stands there or not.
ProgramTable FirstPlaces(const DrivePaths& drives);
/// A path of a table as a native one. Raises `Failure` when there is no such drive.
std::filesystem::path NativePath(const DrivePaths& drives, std::u16string_view path);

}  // namespace lumenote::tool

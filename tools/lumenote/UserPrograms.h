// The user's external programs.
#pragma once
#include <string>

#include "backends/native/folders/DrivePaths.h"
#include "extapps/ProgramTable.h"

namespace lumenote::tool {

/// The programs that the editor would find now.
ProgramTable InstalledPrograms(const DrivePaths& drives);
/// The first place where the editor would look for each program, whether or not it exists.
ProgramTable FirstCandidates(const DrivePaths& drives);
/// The native form of a path in a table. Raises `Failure` for an unknown drive.
std::string NativePath(const DrivePaths& drives, std::u16string_view path);

}  // namespace lumenote::tool

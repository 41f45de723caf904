// System error numbers as run-time errors.
#pragma once
#include <string>

#include "base/RuntimeError.h"

namespace lumenote {

/// The error for `error` (an errno value) met while reading or writing the file at `path`: a
/// missing file and a missing folder are told apart by looking whether the folder is there.
RuntimeError AccessError(int error, const std::string& path);
/// The same for removing or renaming: a refusal is PermissionDenied, not PathAccess.
RuntimeError RemovalError(int error, const std::string& path);

/// Whether the system refuses an act for what it is, so that another way may go through.
bool IsRefusal(int error);

}  // namespace lumenote

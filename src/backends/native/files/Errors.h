// System errors as run-time errors.
#pragma once
#include <string>

#include "base/RuntimeError.h"

namespace lumenote {

/// The error for an errno value met while reading or writing `path`. Checks whether the parent
/// folder exists, to tell a missing file from a missing folder.
RuntimeError AccessError(int error, const std::string& path);
/// The same for deleting or renaming: a refusal is PermissionDenied, not PathAccess.
RuntimeError RemovalError(int error, const std::string& path);

/// Whether the system refuses this operation as such, so that another way may succeed.
bool IsRefusal(int error);

}  // namespace lumenote

// What scripts do to files behind the component's back.
#pragma once
#include <cstdint>
#include <string>

namespace lumenote {

// Paths are native. All return 0 or the system's error number.

int SetReadOnly(const std::string& path, bool on);
/// Shifts the time of the last change.
int ShiftTime(const std::string& path, std::int64_t seconds);
/// Another name for the file at `path`.
int MakeHardLink(const std::string& name, const std::string& path);
/// The same, but a hard link where the system does not let users make symbolic ones.
int MakeSymbolicLink(const std::string& name, const std::string& path);

}  // namespace lumenote

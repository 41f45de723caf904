// Saves into the existing file.
#pragma once
#include <string>
#include <string_view>

namespace lumenote {

class NativeStateFolder;

/// Overwrites the file at the native path `target`, which keeps its links, owner and attributes. At
/// any moment either the file is whole or its old content is on the disk in `backups`. A failed
/// write restores it at once and raises; what cannot be restored, or is cut short by the program's
/// end, becomes a rescue copy at the next start. Reserves the space first, and writes nothing
/// without a backup. Concurrent saves of one file are serialised.
void WriteInPlace(const std::string& target, std::string_view bytes, NativeStateFolder& backups);

}  // namespace lumenote

// Saving into the file itself.
#pragma once
#include <string>
#include <string_view>

namespace lumenote {

class PosixStateFolder;

/// Overwrites the file at the native path `target`, so that it keeps its names, owner and
/// attributes. At every moment the file is whole, or its old content is on the disk in `backups`:
/// a failed write puts it back at once and raises; what cannot be put back, or is cut short by the
/// program's end, is a rescue copy at the next start. The space is asked for first, and without a
/// backup nothing is written. Two such saves of one file wait for each other.
void WriteInPlace(const std::string& target, std::string_view bytes, PosixStateFolder& backups);

}  // namespace lumenote

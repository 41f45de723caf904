// Records of work files, for the next start if this program dies.
#pragma once
#include <optional>
#include <string_view>

#include "extapps/WorkCopies.h"

namespace lumenote {

class StateFolder;
struct OrphanedCopy;

/// Writes a record of the work file to the state folder. It is deleted with `sent`, unless this
/// program dies first or leaves it on purpose. A failure is ignored.
void Record(StateFolder& state, SentWorkFile& sent);
/// The work file of a record found in the state folder; empty for a damaged record or the copy of a
/// note.
std::optional<SentWorkFile> SentOf(const OrphanedCopy& copy);
/// Whether the copy is a record, damaged or not.
bool IsRecord(const OrphanedCopy& copy);

}  // namespace lumenote

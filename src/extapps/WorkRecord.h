// What the next start has to know of a work file when this program dies.
#pragma once
#include <optional>
#include <string_view>

#include "extapps/WorkCopies.h"

namespace lumenote {

class StateFolder;
struct OrphanedCopy;

/// Writes a record of the work file to the state folder; it goes with `sent` unless this program
/// dies first, or leaves it. Nothing happens when it cannot be written.
void Record(StateFolder& state, SentWorkFile& sent);
/// The work file that a copy found in the state folder is a record of; none for the copy of a note,
/// nor for a record that is damaged.
std::optional<SentWorkFile> SentOf(const OrphanedCopy& copy);
/// Whether the copy is a record, damaged or not.
bool IsRecord(const OrphanedCopy& copy);

}  // namespace lumenote

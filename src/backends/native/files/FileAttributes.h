// What belongs to a file beside its content.
#pragma once
#include "backends/native/files/OpenFile.h"

namespace lumenote {

/// Copies owner, access list and attributes as far as the file system and the user's rights allow;
/// a group that cannot be set gets no more rights than others. Returns whether `to` then has all
/// that `from` has.
bool CopyAttributes(const OpenFile& from, const OpenFile& to);
/// Copies the user's rights alone, as far as possible: who may read, write or execute.
void CopyMode(const OpenFile& from, const OpenFile& to);
/// Copies the time of the last change.
void CopyTime(const OpenFile& from, const OpenFile& to);

}  // namespace lumenote

// A file's metadata: owner, mode, access list, extended attributes.
#pragma once
#include "backends/posix/files/Descriptor.h"

namespace lumenote {

/// Copies mode, owner, group and extended attributes, including the access list, as far as the file
/// system and the user's rights allow; a group that cannot be set gets no more rights than others.
/// Returns whether `to` has exactly the attributes of `from`.
bool CopyAttributes(const Descriptor& from, const Descriptor& to);

}  // namespace lumenote

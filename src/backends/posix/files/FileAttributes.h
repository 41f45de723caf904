// What a file has beside its content: owner, mode, access list, extended attributes.
#pragma once
#include "backends/posix/files/Descriptor.h"

namespace lumenote {

/// Gives `to` the mode, owner, group and extended attributes of `from`, the access list among them,
/// as far as the file system and the user's rights let it; a group that it cannot have gets no more
/// than others. Returns whether `to` has all of them, and no others.
bool CopyAttributes(const Descriptor& from, const Descriptor& to);

}  // namespace lumenote

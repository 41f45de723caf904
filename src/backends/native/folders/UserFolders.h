// The user's native folders, as each system knows them.
#pragma once
#include <string>
#include <vector>

namespace lumenote {

/// All are absolute, without a trailing separator, or empty if there is none. The personal
/// documents:
std::string DocumentsFolder();
/// For what survives a crash; need not exist yet.
std::string ComponentStateFolder();
/// Where temporary folders go, the first choice first.
std::vector<std::string> TemporaryParents();

}  // namespace lumenote

// The native folders that the desktop's base-directory rules give a user.
#pragma once
#include <string>

namespace lumenote {

/// Each is absolute and without a closing slash; empty when there is none.
std::string HomeFolder();
/// $XDG_DATA_HOME, else .local/share in the home folder.
std::string DataFolder();
/// $XDG_CONFIG_HOME, else .config in the home folder.
std::string ConfigFolder();
/// $XDG_STATE_HOME, else .local/state in the home folder.
std::string StateFolderOfUser();
/// The personal documents: as user-dirs.dirs in the configuration folder says, else Documents in
/// the home folder, else the home folder; the first of them that there is.
std::string DocumentsFolder();

}  // namespace lumenote

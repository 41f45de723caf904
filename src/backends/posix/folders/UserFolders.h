// The user's native folders by the desktop's base-directory rules.
#pragma once
#include <string>

namespace lumenote {

/// All are absolute, without a trailing slash, or empty if there is none.
std::string HomeFolder();
/// $XDG_DATA_HOME, else .local/share in the home folder.
std::string DataFolder();
/// $XDG_CONFIG_HOME, else .config in the home folder.
std::string ConfigFolder();
/// $XDG_STATE_HOME, else .local/state in the home folder.
std::string StateFolderOfUser();
/// The personal documents: the folder set in user-dirs.dirs, else Documents in the home folder,
/// else the home folder; the first one that exists.
std::string DocumentsFolder();

}  // namespace lumenote

// The user's native folders by the desktop's base-directory rules.
#pragma once
#include <string>
#include <vector>

namespace lumenote {

/// All are absolute, without a trailing slash, or empty if there is none.
std::string HomeFolder();
/// $XDG_DATA_HOME, else .local/share in the home folder.
std::string DataFolder();
/// $XDG_CONFIG_HOME, else .config in the home folder.
std::string ConfigFolder();

/// The settings: lumenote/settings.ini in the configuration folder; empty without one.
std::string SettingsFile();
/// The registry: lumenote/registry.ini in the user's configuration folder, then in the system's.
std::vector<std::string> RegistryFiles();

}  // namespace lumenote

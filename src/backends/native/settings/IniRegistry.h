// The machine-wide registry, in files written by an administrator or user.
#pragma once
#include <string>
#include <utility>
#include <vector>

#include "platform/Registry.h"

namespace lumenote {

/// A key is the section [Machine/KEY] of a file in the settings' format, its backslashes doubled;
/// the default value has an empty name. The first file that has the value wins. Missing and
/// unreadable files are empty.
class IniRegistry : public Registry {
 public:
  /// Native paths.
  explicit IniRegistry(std::vector<std::string> files) : files_(std::move(files)) {}

  std::optional<std::u16string> Read(std::u16string_view key,
                                     std::u16string_view name) const override;

 private:
  std::vector<std::string> files_;
};

}  // namespace lumenote

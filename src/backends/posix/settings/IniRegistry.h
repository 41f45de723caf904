// The machine-wide registry as files that an administrator or a user writes.
#pragma once
#include <string>
#include <utility>
#include <vector>

#include "platform/Registry.h"

namespace lumenote {

/// A key is the section [Machine/KEY] of a file in the form of the settings, its backslashes
/// doubled; a default value has no name before its equals sign. Of several files the first that
/// holds the value counts. Missing and unreadable files hold nothing.
class IniRegistry : public Registry {
 public:
  /// lumenote/registry.ini in the user's configuration folder, then in those of the system.
  IniRegistry();
  /// Native paths.
  explicit IniRegistry(std::vector<std::string> files) : files_(std::move(files)) {}

  std::optional<std::u16string> Read(std::u16string_view key,
                                     std::u16string_view name) const override;

 private:
  std::vector<std::string> files_;
};

}  // namespace lumenote

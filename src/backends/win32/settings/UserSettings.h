// The settings store in the current user's registry.
#pragma once
#include "platform/Settings.h"

namespace lumenote {

/// Where Visual Basic's SaveSetting and GetSetting look, so that hosts and the component find each
/// other's values: a key per application with a subkey per section. Letter case does not tell names
/// apart, and a backslash in one begins a subkey.
class UserSettings final : public Settings {
 public:
  std::optional<std::u16string> Read(std::u16string_view application, std::u16string_view section,
                                     std::u16string_view key) const override;
  void Write(std::u16string_view application, std::u16string_view section, std::u16string_view key,
             std::u16string_view value) override;
};

}  // namespace lumenote

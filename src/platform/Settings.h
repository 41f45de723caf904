// The per-user settings store: strings by application, section and key.
#pragma once
#include <optional>
#include <string>
#include <string_view>

namespace lumenote {

/// Values are strings with any characters, names too; an empty name is a name.
class Settings {
 public:
  virtual ~Settings() = default;
  /// Empty when nothing is stored.
  virtual std::optional<std::u16string> Read(std::u16string_view application,
                                             std::u16string_view section,
                                             std::u16string_view key) const = 0;
  /// Stored at once, safely beside other writers. Raises PathAccess when it cannot be.
  virtual void Write(std::u16string_view application, std::u16string_view section,
                     std::u16string_view key, std::u16string_view value) = 0;
};

}  // namespace lumenote

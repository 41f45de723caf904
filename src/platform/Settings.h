// The per-user settings store: strings by application, section and key.
#pragma once
#include <optional>
#include <string>
#include <string_view>

namespace lumenote {

/// Names and values may contain any characters; an empty name is valid.
class Settings {
 public:
  virtual ~Settings() = default;
  /// Empty if nothing is stored.
  virtual std::optional<std::u16string> Read(std::u16string_view application,
                                             std::u16string_view section,
                                             std::u16string_view key) const = 0;
  /// Stored at once, safely with concurrent writers. Raises PathAccess on failure.
  virtual void Write(std::u16string_view application, std::u16string_view section,
                     std::u16string_view key, std::u16string_view value) = 0;
};

}  // namespace lumenote

// The per-user settings store: strings by application, section and key.
#pragma once
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace lumenote {

/// Names and values may contain any characters; an empty name is valid.
class Settings {
 public:
  virtual ~Settings() = default;
  /// Empty if nothing is stored.
  virtual std::optional<std::u16string> Read(std::u16string_view application,
                                             std::u16string_view section,
                                             std::u16string_view key) const = 0;
  /// Several keys of a section, in the same order, as they are at one time.
  virtual std::vector<std::optional<std::u16string>> ReadEach(
      std::u16string_view application, std::u16string_view section,
      const std::vector<std::u16string>& keys) const {
    std::vector<std::optional<std::u16string>> values;
    values.reserve(keys.size());
    for (const std::u16string& key : keys) values.push_back(Read(application, section, key));
    return values;
  }
  /// Stored at once, safely with concurrent writers. Raises PathAccess on failure.
  virtual void Write(std::u16string_view application, std::u16string_view section,
                     std::u16string_view key, std::u16string_view value) = 0;
};

}  // namespace lumenote

// The settings store as a file of the user's.
#pragma once
#include <cstdint>
#include <optional>
#include <string>

#include "backends/posix/settings/IniText.h"
#include "platform/Settings.h"

namespace lumenote {

/// Each change re-reads the file under a lock and replaces it whole, so that writers in several
/// processes keep each other's values. A missing or unreadable file reads as empty; an unreadable
/// one is never overwritten.
class IniSettings : public Settings {
 public:
  /// The user's own file: lumenote/settings.ini in the configuration folder.
  IniSettings();
  /// `path` is native; its folder is created on the first write.
  explicit IniSettings(std::string path);

  std::optional<std::u16string> Read(std::u16string_view application, std::u16string_view section,
                                     std::u16string_view key) const override;
  void Write(std::u16string_view application, std::u16string_view section, std::u16string_view key,
             std::u16string_view value) override;

 private:
  /// Changes whenever the file does.
  struct Version {
    std::uint64_t device = 0;
    std::uint64_t inode = 0;
    std::int64_t size = -1;
    std::int64_t seconds = 0;
    std::int64_t nanoseconds = 0;
    bool operator==(const Version&) const = default;
  };

  Version CurrentVersion() const;
  void Refresh() const;
  void Store(std::u16string_view application, std::u16string_view section, std::u16string_view key,
             std::u16string_view value) const;

  std::string path_;
  mutable std::optional<Version> known_;  // empty: must be read again
  mutable IniText text_;                  // the file's content at version `known_`
};

}  // namespace lumenote

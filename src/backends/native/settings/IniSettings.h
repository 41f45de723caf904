// The settings store as a file of the user's.
#pragma once
#include <optional>
#include <string>
#include <utility>

#include "backends/native/files/Disk.h"
#include "backends/native/settings/IniText.h"
#include "platform/Settings.h"

namespace lumenote {

/// Each change re-reads the file under a lock and replaces it whole, so that writers in several
/// processes keep each other's values. A missing or unreadable file reads as empty; an unreadable
/// one is never overwritten.
class IniSettings : public Settings {
 public:
  /// `path` is native; its folder is created on the first write.
  explicit IniSettings(std::string path) : path_(std::move(path)) {}

  std::optional<std::u16string> Read(std::u16string_view application, std::u16string_view section,
                                     std::u16string_view key) const override;
  std::vector<std::optional<std::u16string>> ReadEach(
      std::u16string_view application, std::u16string_view section,
      const std::vector<std::u16string>& keys) const override;
  void Write(std::u16string_view application, std::u16string_view section, std::u16string_view key,
             std::u16string_view value) override;

 private:
  void Refresh() const;
  void Store(std::u16string_view application, std::u16string_view section, std::u16string_view key,
             std::u16string_view value) const;

  std::string path_;
  mutable std::optional<FileStatus> known_;  // empty: must be read again
  mutable IniText text_;                     // the file's content at `known_`
};

}  // namespace lumenote

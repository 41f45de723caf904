// A sandbox in one folder of the file system.
#pragma once
#include <memory>
#include <string>

#include "backends/headless/MemoryClipboard.h"
#include "backends/native/folders/FixedFolders.h"
#include "backends/native/folders/TemporaryFolder.h"
#include "backends/native/saving/NativeFiles.h"
#include "backends/native/settings/IniRegistry.h"
#include "backends/native/settings/IniSettings.h"
#include "backends/native/state/NativeStateFolder.h"
#include "pilot/machine/FakePrograms.h"
#include "pilot/machine/Sandbox.h"

namespace lumenote {

/// Drive C: is the folder c of the root, beside settings.ini, registry.ini and the state folder.
/// C:\Temp, C:\Documents, C:\Program Files and C:\Lumenote exist from the start.
class FolderSandbox final : public Sandbox {
 public:
  /// A new one in the system's temporary folder, removed at the end. Raises PathAccess if it cannot
  /// be created.
  FolderSandbox();
  /// In the native folder `root`, which is created if missing and stays. Raises PathAccess if it
  /// cannot be created.
  explicit FolderSandbox(const std::string& root);

  Settings& UserSettings() override { return settings_; }
  Files& FileSystem() override { return files_; }
  Folders& SpecialFolders() override { return folders_; }
  StateFolder& State() override { return state_; }
  Clipboard& SystemClipboard() override { return clipboard_; }

  const Registry& MachineRegistry() const override { return registry_; }
  const ProgramFolders& InstalledPrograms() const override { return programFolders_; }
  FakePrograms& Programs() override { return programs_; }

  void WriteRegistry(std::u16string_view key, std::u16string_view name,
                     std::u16string_view value) override;

  void MakeParents(std::u16string_view path) override;
  std::vector<std::u16string> List(std::u16string_view folder) const override;
  void Remove(std::u16string_view path) override;
  void ReadOnly(std::u16string_view path, bool on) override;
  void Link(std::u16string_view name, std::u16string_view path, LinkKind kind) override;
  void Age(std::u16string_view path, std::int64_t seconds) override;

 private:
  explicit FolderSandbox(std::unique_ptr<TemporaryFolder> own);
  /// The native path of an existing file.
  std::string FileAt(std::u16string_view path) const;

  std::unique_ptr<TemporaryFolder> own_;  // the root if it is temporary, else null
  DrivePaths drives_;
  NativeStateFolder state_;
  NativeFiles files_;
  FixedFolders folders_;
  IniSettings settings_;
  IniRegistry registry_;
  IniSettings registryFile_;
  FixedProgramFolders programFolders_;
  FakePrograms programs_;
  MemoryClipboard clipboard_;
};

}  // namespace lumenote

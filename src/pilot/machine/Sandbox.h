// The machine that a script runs on, as the component and as the script see it.
#pragma once
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace lumenote {

class Clipboard;
class Files;
class Folders;
class ProgramFolders;
class Registry;
class Settings;
class FakePrograms;
class StateFolder;

enum class LinkKind { Hard, Symbolic };

/// A machine of its own: drive C: in a folder, settings and registry in files, a private clipboard.
/// Nothing outside is read or written. Must outlive the run.
class Sandbox {
 public:
  virtual ~Sandbox() = default;

  virtual Settings& UserSettings() = 0;
  virtual Files& FileSystem() = 0;
  virtual Folders& SpecialFolders() = 0;
  virtual StateFolder& State() = 0;
  virtual Clipboard& SystemClipboard() = 0;

  virtual const Registry& MachineRegistry() const = 0;
  virtual const ProgramFolders& InstalledPrograms() const = 0;
  /// The only programs of this machine.
  virtual FakePrograms& Programs() = 0;

  /// Writes one string by key (case ignored) and name ("" for the key's default value).
  virtual void WriteRegistry(std::u16string_view key, std::u16string_view name,
                             std::u16string_view value) = 0;

  // File operations behind the component's back. Paths are drive-letter paths; failures are
  // run-time errors. This one creates the missing parent folders of `path`.
  virtual void MakeParents(std::u16string_view path) = 0;
  /// Names of a folder's files and folders, sorted by UTF-16 unit.
  virtual std::vector<std::u16string> List(std::u16string_view folder) const = 0;
  /// Removes a file, or a folder with its content, even if read-only.
  virtual void Remove(std::u16string_view path) = 0;
  virtual void ReadOnly(std::u16string_view path, bool on) = 0;
  /// Creates another name for the file at `path`.
  virtual void Link(std::u16string_view name, std::u16string_view path, LinkKind kind) = 0;
  /// Shifts the file's modification time.
  virtual void Age(std::u16string_view path, std::int64_t seconds) = 0;
};

}  // namespace lumenote

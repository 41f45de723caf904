// Everything the component needs from the machine, in one bundle that a program constructs.
#pragma once

namespace lumenote {

class Backend;
class Clipboard;
class Files;
class Folders;
class Fonts;
class Processes;
class ProgramFolders;
class Registry;
class Settings;
class StateFolder;

/// Hosts construct one, such as `QtPlatform`, and hand it over; its members are the component's own
/// affair. Must outlive every control created with it.
class Platform {
 public:
  virtual ~Platform() = default;
  /// The windows.
  virtual Backend& Windows() = 0;
  /// The per-user settings store.
  virtual Settings& UserSettings() = 0;
  /// The disk, by drive-letter paths.
  virtual Files& FileSystem() = 0;
  /// The folders for documents and for temporary files.
  virtual Folders& SpecialFolders() = 0;
  /// Storage for what must survive a crash.
  virtual StateFolder& State() = 0;
  /// The clipboard.
  virtual Clipboard& SystemClipboard() = 0;
  /// The installed fonts.
  virtual const Fonts& SystemFonts() = 0;
  /// Where other programs say that they are installed.
  virtual const Registry& MachineRegistry() = 0;
  /// Where other programs are looked for besides.
  virtual const ProgramFolders& InstalledPrograms() = 0;
  /// Starts other programs and watches them.
  virtual Processes& Programs() = 0;
};

}  // namespace lumenote

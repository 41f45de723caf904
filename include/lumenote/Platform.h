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

/// Must outlive every control created with it.
class Platform {
 public:
  virtual ~Platform() = default;
  virtual Backend& Windows() = 0;
  virtual Settings& UserSettings() = 0;
  virtual Files& FileSystem() = 0;
  virtual Folders& SpecialFolders() = 0;
  /// Storage for what must survive a crash.
  virtual StateFolder& State() = 0;
  virtual Clipboard& SystemClipboard() = 0;
  virtual const Fonts& SystemFonts() = 0;
  /// Other programs: how to find, start and watch them.
  virtual const Registry& MachineRegistry() = 0;
  virtual const ProgramFolders& InstalledPrograms() = 0;
  virtual Processes& Programs() = 0;
};

}  // namespace lumenote

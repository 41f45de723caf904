#include "lumenote/Win32Platform.h"

#include "backends/native/folders/NativeFolders.h"
#include "backends/native/folders/NativeProgramFolders.h"
#include "backends/native/saving/NativeFiles.h"
#include "backends/native/settings/MachineRegistry.h"
#include "backends/native/state/NativeStateFolder.h"
#include "backends/win32/InstalledFonts.h"
#include "backends/win32/Win32Backend.h"
#include "backends/win32/clipboard/SystemClipboard.h"
#include "backends/win32/programs/TopWindows.h"
#include "backends/win32/programs/WinProcesses.h"
#include "backends/win32/settings/UserSettings.h"

namespace lumenote {

struct Win32Platform::Parts {
  DrivePaths drives = DrivePaths::OfUser();
  NativeStateFolder state{NativeStateFolder::OfUser(), drives};
  NativeFiles files{drives, &state};
  class UserSettings settings;
  std::unique_ptr<Registry> registry = MakeMachineRegistry();
  NativeProgramFolders programFolders{drives};
  TopWindows programWindows;
  WinProcesses programs{drives, programWindows};
  NativeFolders folders{drives, [this] { return programs.HoldsFiles(); }};
  Win32Backend windows;
  class SystemClipboard clipboard;
  InstalledFonts fonts;
};

Win32Platform::Win32Platform() : parts_(std::make_unique<Parts>()) {}

Win32Platform::~Win32Platform() { parts_->windows.CloseForms(); }

Backend& Win32Platform::Windows() { return parts_->windows; }

Settings& Win32Platform::UserSettings() { return parts_->settings; }

Files& Win32Platform::FileSystem() { return parts_->files; }

Folders& Win32Platform::SpecialFolders() { return parts_->folders; }

StateFolder& Win32Platform::State() { return parts_->state; }

Clipboard& Win32Platform::SystemClipboard() { return parts_->clipboard; }

const Fonts& Win32Platform::SystemFonts() { return parts_->fonts; }

const Registry& Win32Platform::MachineRegistry() { return *parts_->registry; }

const ProgramFolders& Win32Platform::InstalledPrograms() { return parts_->programFolders; }

Processes& Win32Platform::Programs() { return parts_->programs; }

std::u16string Win32Platform::ToDrivePath(std::string_view native) const {
  return parts_->drives.ToDrivePath(native);
}

}  // namespace lumenote

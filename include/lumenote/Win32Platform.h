// The Windows platform: the user's files, settings, programs and clipboard.
#pragma once
#include <memory>
#include <string>
#include <string_view>

#include "lumenote/Platform.h"

namespace lumenote {

/// `Win32Platform platform; CoBxRtf control(platform);` is all a host needs. Belongs to the thread
/// that made it, which must dispatch messages.
class Win32Platform : public Platform {
 public:
  Win32Platform();
  ~Win32Platform() override;

  Backend& Windows() override;
  Settings& UserSettings() override;
  Files& FileSystem() override;
  Folders& SpecialFolders() override;
  StateFolder& State() override;
  Clipboard& SystemClipboard() override;
  const Fonts& SystemFonts() override;
  const Registry& MachineRegistry() override;
  const ProgramFolders& InstalledPrograms() override;
  Processes& Programs() override;

  /// The drive-letter path of a native path (UTF-8). Raises PathNotFound when no drive-letter path
  /// can express it.
  std::u16string ToDrivePath(std::string_view native) const;

 private:
  struct Parts;

  std::unique_ptr<Parts> parts_;
};

}  // namespace lumenote

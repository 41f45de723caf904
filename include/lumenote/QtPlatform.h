// The desktop platform: Qt windows, the user's files, settings and clipboard.
#pragma once
#include <memory>
#include <string>
#include <string_view>

#include "lumenote/Platform.h"

namespace lumenote {

/// `QtPlatform platform; CoBxRtf control(platform);` is all a host needs. Windows, clipboard, fonts
/// and programs use the host's QApplication, which may be created after the platform and destroyed
/// before it; the editors then close as the user would close them. If there is none at the first
/// use, the platform creates one. These members raise InvalidArgument (5) if the application object
/// is of another kind or already gone, or on any thread but the QApplication's.
class QtPlatform final : public Platform {
 public:
  QtPlatform();
  ~QtPlatform() override;

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

  /// Whether words are checked for their French spelling, where a dictionary is installed (Debian:
  /// hunspell-fr); on by default. Applies to editors opened from now on.
  void Spelling(bool on);

 private:
  struct Parts;
  struct Desktop;
  Desktop& OnDesktop();

  std::unique_ptr<Parts> parts_;
  std::unique_ptr<Desktop> desktop_;  // created at the first use
};

}  // namespace lumenote

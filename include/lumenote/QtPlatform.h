// The desktop as a program's platform: Qt windows, the user's files, settings and clipboard.
#pragma once
#include <memory>
#include <string>
#include <string_view>

#include "lumenote/Platform.h"

namespace lumenote {

/// `QtPlatform platform; CoBxRtf control(platform);` is all a host needs. The windows, the
/// clipboard, the fonts and the programs use the host's QApplication, which may be made after the
/// platform and go before it: then the editors close as the user would close them. Where there is
/// none at the first use the platform makes one. They raise InvalidArgument (5) where the
/// application object is of another kind, or gone, and on another thread than the QApplication's.
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

  /// A native path, UTF-8, as the path that the control takes. Raises PathNotFound for one that no
  /// drive-letter path can name.
  std::u16string ToDrivePath(std::string_view native) const;

 private:
  struct Parts;
  struct Desktop;
  Desktop& OnDesktop();

  std::unique_ptr<Parts> parts_;
  std::unique_ptr<Desktop> desktop_;  // made at the first use
};

}  // namespace lumenote

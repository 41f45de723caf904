#include "Machine.h"

#include "backends/headless/HeadlessBackend.h"
#include "backends/headless/MemoryClipboard.h"
#include "backends/native/folders/NativeFolders.h"
#include "backends/posix/PosixParts.h"
#include "backends/posix/programs/PosixProcesses.h"
#include "base/RuntimeError.h"
#include "platform/Fonts.h"

namespace lumenote {

namespace {

struct NoFonts final : Fonts {
  std::vector<std::u16string> ScreenFonts() const override { return {}; }
  int PrinterFontCount() const override { throw RuntimeError(ErrorNumber::Printer); }
};

/// The user's files and programs without windows.
class WindowlessMachine final : public Platform {
 public:
  Backend& Windows() override { return windows_; }
  Settings& UserSettings() override { return parts_.settings; }
  Files& FileSystem() override { return parts_.files; }
  Folders& SpecialFolders() override { return folders_; }
  StateFolder& State() override { return parts_.state; }
  Clipboard& SystemClipboard() override { return clipboard_; }
  const Fonts& SystemFonts() override { return fonts_; }
  const Registry& MachineRegistry() override { return parts_.registry; }
  const ProgramFolders& InstalledPrograms() override { return parts_.programFolders; }
  Processes& Programs() override { return programs_; }

 private:
  PosixParts parts_;
  PosixProcesses programs_{parts_.drives};
  NativeFolders folders_{parts_.drives, [this] { return programs_.HoldsFiles(); }};
  HeadlessBackend windows_;
  MemoryClipboard clipboard_;
  NoFonts fonts_;
};

}  // namespace

std::shared_ptr<Platform> TheMachine() {
  static const auto machine = std::make_shared<WindowlessMachine>();
  return machine;
}

void Pump(int) {}  // no events come

}  // namespace lumenote

// The launcher on Windows.
#include <cstdio>
#include <fcntl.h>
#include <io.h>

#include "Launcher.h"
#include "backends/win32/Win32Backend.h"
#include "backends/win32/Win32UserActs.h"
#include "backends/win32/programs/ConsoleProgram.h"
#include "backends/win32/windows/Shot.h"
#include "base/Strings.h"
#include "lumenote/Win32Platform.h"

using namespace lumenote;

namespace {

class Win32Desktop final : public SystemDesktop<Win32Platform, Win32Backend, Win32UserActs> {
 public:
  void Capture(const Form& form, const std::string& png) override {
    SaveWindowShot(Shown().PeerOf(form)->Handle(), FromUtf8(png));
  }
  void UseStandardStreams() override {
    _setmode(_fileno(stdin), _O_BINARY);
    _setmode(_fileno(stdout), _O_BINARY);
  }
  /// The windows themselves hear of the session's end.
  std::shared_ptr<void> WatchEnds(std::function<void()>) override { return nullptr; }
};

/// A program with windows prints on the console that it was started from, unless its output goes
/// elsewhere.
void UseConsoleOfParent() {
  if (GetStdHandle(STD_OUTPUT_HANDLE) || !AttachConsole(ATTACH_PARENT_PROCESS)) return;
  std::freopen("CONOUT$", "w", stdout);
  std::freopen("CONOUT$", "w", stderr);
}

}  // namespace

int wmain(int argc, wchar_t** argv) {
  UseConsoleOfParent();
  UseUtf8Streams();
  const std::vector<std::string> words = Utf8Arguments(argc - 1, argv + 1);
  const std::vector<std::string_view> arguments(words.begin(), words.end());
  Win32Desktop desktop;
  return Launch(arguments, desktop);
}

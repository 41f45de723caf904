// The launcher on Qt.
#include <QApplication>
#include <csignal>
#include <fcntl.h>
#include <optional>
#include <unistd.h>
#include <utility>
#include <vector>

#include "Launcher.h"
#include "SuddenEnds.h"
#include "backends/qt/QtBackend.h"
#include "backends/qt/QtUserActs.h"
#include "backends/qt/printing/PrintedNote.h"
#include "backends/qt/toolkit/QtText.h"
#include "backends/qt/windows/Shot.h"
#include "backends/qt/x11/Display.h"
#include "lumenote/QtPlatform.h"

using namespace lumenote;

namespace {

/// Makes the application with the first need for windows, so that help needs no display.
class QtDesktop final : public SystemDesktop<QtPlatform, QtBackend, QtUserActs> {
 public:
  explicit QtDesktop(std::function<void()> makeApplication)
      : makeApplication_(std::move(makeApplication)) {}

  void Capture(const Form& form, const std::string& png) override {
    SaveWindowShot(Shown().Widgets(), form, QString::fromStdString(png));
  }
  void UseStandardStreams() override { std::signal(SIGPIPE, SIG_IGN); }
  void WorkWithoutDisplay() override { qputenv("QT_QPA_PLATFORM", "offscreen"); }
  std::string Pdf(const Document& note, std::u16string_view title) override {
    return PdfOf(note, ToQString(title)).toStdString();
  }
  std::shared_ptr<void> WatchEnds(std::function<void()> keep) override {
    return std::make_shared<SuddenEnds>(std::move(keep));
  }

 private:
  void Prepare() override { makeApplication_(); }

  std::function<void()> makeApplication_;
};

/// The number of a stream that came closed would go to the next file or connection opened, which
/// would then take what is meant for the stream. Input and output are opened the wrong way round:
/// using them still fails.
void OccupyClosedStreams() {
  for (const auto& [stream, mode] :
       {std::pair(STDIN_FILENO, O_WRONLY), {STDOUT_FILENO, O_RDONLY}, {STDERR_FILENO, O_WRONLY}})
    if (fcntl(stream, F_GETFD) < 0) static_cast<void>(open("/dev/null", mode));
}

}  // namespace

int main(int argc, char** argv) {
  OccupyClosedStreams();
  const std::vector<std::string_view> arguments(argv + 1, argv + argc);
  std::optional<QApplication> application;  // outlives all windows
  QtDesktop desktop([&] {
    if (application) return;
    RequireDisplay();
    application.emplace(argc, argv);
  });
  return Launch(arguments, desktop);
}

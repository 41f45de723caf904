#include "SuddenEnds.h"

#include <QApplication>
#include <QEvent>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <unistd.h>
#include <utility>

namespace {

constexpr int kSignals[] = {SIGTERM, SIGHUP, SIGINT};

int thePipe[2] = {-1, -1};
std::function<void()> theKeep;

void Keep() {
  if (const auto keep = std::exchange(theKeep, nullptr)) keep();
}

// Nothing but the number may leave a signal handler; the event loop does the rest.
extern "C" void WriteSignal(int number) {
  const int before = errno;
  const auto byte = static_cast<unsigned char>(number);
  if (write(thePipe[1], &byte, 1) != 1) _exit(1);
  errno = before;
}

void EndBySignal() {
  unsigned char number = 0;
  if (read(thePipe[0], &number, 1) != 1) return;
  Keep();
  std::signal(number, SIG_DFL);
  std::raise(number);
}

/// Nobody but the desktop asks this program to quit, at the session's end, which questions would
/// keep waiting.
class QuitFilter final : public QObject {
 public:
  bool eventFilter(QObject* object, QEvent* event) override {
    if (object == qGuiApp && event->type() == QEvent::Quit) {
      Keep();
      std::_Exit(0);
    }
    return false;
  }
};

/// What the program was started to ignore stays ignored.
void Handle(void (*handler)(int)) {
  for (const int number : kSignals)
    if (std::signal(number, handler) == SIG_IGN) std::signal(number, SIG_IGN);
}

bool MakePipe() {
  // The toolkit ends the program by `exit` when its connection to the display breaks.
  static const bool made = pipe2(thePipe, O_CLOEXEC) == 0 && std::atexit(&Keep) == 0;
  return made;
}

}  // namespace

SuddenEnds::SuddenEnds(std::function<void()> keep) {
  if (!MakePipe()) return;
  theKeep = std::move(keep);
  signals_ = std::make_unique<QSocketNotifier>(thePipe[0], QSocketNotifier::Read);
  QObject::connect(signals_.get(), &QSocketNotifier::activated, &EndBySignal);
  session_ = std::make_unique<QuitFilter>();
  qGuiApp->installEventFilter(session_.get());
  Handle(&WriteSignal);
}

SuddenEnds::~SuddenEnds() {
  Handle(SIG_DFL);
  theKeep = nullptr;
}

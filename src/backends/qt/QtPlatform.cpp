#include "lumenote/QtPlatform.h"

#include <QApplication>
#include <QLibraryInfo>
#include <QThread>
#include <QTimer>
#include <QTranslator>
#include <clocale>

#include "backends/native/folders/NativeFolders.h"
#include "backends/posix/PosixParts.h"
#include "backends/posix/programs/PosixProcesses.h"
#include "backends/qt/ApplicationEnd.h"
#include "backends/qt/QtBackend.h"
#include "backends/qt/QtClipboard.h"
#include "backends/qt/QtFonts.h"
#include "backends/qt/spelling/Speller.h"
#include "backends/qt/x11/Display.h"
#include "backends/qt/x11/X11Windows.h"

namespace lumenote {

namespace {

/// Raises InvalidArgument if windows cannot be used.
void CheckApplication() {
  const auto* application = qobject_cast<QApplication*>(QCoreApplication::instance());
  if (!application)
    throw RuntimeError(ErrorNumber::InvalidArgument, u"L'éditeur a besoin d'un objet QApplication");
  if (application->thread() != QThread::currentThread())
    throw RuntimeError(ErrorNumber::InvalidArgument,
                       u"Appel depuis un autre fil d'exécution que celui de QApplication");
}

/// The program's application object, created if the host has none.
class OwnApplication {
 public:
  OwnApplication() {
    if (QCoreApplication::instance())
      CheckApplication();
    else
      Make();
  }

 private:
  void Make() {
    RequireDisplay();
    // The application object takes over the user's locale. A host without Qt writes its numbers
    // as before.
    const std::string numbers = std::setlocale(LC_NUMERIC, nullptr);
    application_ = std::make_unique<QApplication>(count_, names_);
    std::setlocale(LC_NUMERIC, numbers.c_str());
    // Translates Qt's own dialogs to French.
    if (french_.load(QStringLiteral("qtbase_fr"),
                     QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
      QCoreApplication::installTranslator(&french_);
  }

  char name_[9] = "Lumenote";
  char* names_[2] = {name_, nullptr};
  int count_ = 1;
  QTranslator french_;
  std::unique_ptr<QApplication> application_;
};

/// Reaps programs from time to time even if nobody asks about them, so that none stays a zombie.
class ReapingProcesses final : public PosixProcesses {
 public:
  ReapingProcesses(DrivePaths drives, ProgramWindows& windows)
      : PosixProcesses(std::move(drives), &windows) {
    QObject::connect(&timer_, &QTimer::timeout, [this] {
      Reap();
      if (Idle()) timer_.stop();
    });
  }

  ProcessId Start(std::u16string_view commandLine) override {
    timer_.start(kInterval);
    return PosixProcesses::Start(commandLine);
  }
  void Open(std::u16string_view address) override {
    timer_.start(kInterval);
    PosixProcesses::Open(address);
  }

 private:
  static constexpr int kInterval = 1000;  // milliseconds

  QTimer timer_;
};

}  // namespace

/// The parts that need no application object.
struct QtPlatform::Parts : PosixParts {
  X11Windows programWindows;
  ReapingProcesses programs{drives, programWindows};
  NativeFolders folders{drives, [this] { return programs.HoldsFiles(); }};
  bool spelling = true;
};

struct QtPlatform::Desktop {
  explicit Desktop(Parts& parts) : speller(parts.settings) { CheckSpelling(parts.spelling); }

  void CheckSpelling(bool on) { windows.CheckSpelling(on ? &speller : nullptr); }

  OwnApplication application;
  Speller speller;
  QtBackend windows;
  QtClipboard clipboard;
  QtFonts fonts;
  ApplicationEnd end{[this] { windows.CloseForms(); }};
};

QtPlatform::QtPlatform() : parts_(std::make_unique<Parts>()) {}

QtPlatform::~QtPlatform() = default;

QtPlatform::Desktop& QtPlatform::OnDesktop() {
  if (desktop_)
    CheckApplication();
  else
    desktop_ = std::make_unique<Desktop>(*parts_);
  return *desktop_;
}

void QtPlatform::Spelling(bool on) {
  parts_->spelling = on;
  if (desktop_) desktop_->CheckSpelling(on);
}

Backend& QtPlatform::Windows() { return OnDesktop().windows; }

Settings& QtPlatform::UserSettings() { return parts_->settings; }

Files& QtPlatform::FileSystem() { return parts_->files; }

Folders& QtPlatform::SpecialFolders() { return parts_->folders; }

StateFolder& QtPlatform::State() { return parts_->state; }

Clipboard& QtPlatform::SystemClipboard() { return OnDesktop().clipboard; }

const Fonts& QtPlatform::SystemFonts() { return OnDesktop().fonts; }

const Registry& QtPlatform::MachineRegistry() { return parts_->registry; }

const ProgramFolders& QtPlatform::InstalledPrograms() { return parts_->programFolders; }

Processes& QtPlatform::Programs() {
  OnDesktop();
  return parts_->programs;
}

std::u16string QtPlatform::ToDrivePath(std::string_view native) const {
  return parts_->drives.ToDrivePath(native);
}

}  // namespace lumenote

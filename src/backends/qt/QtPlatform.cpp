#include "backends/qt/QtPlatform.h"

#include <QApplication>
#include <QLibraryInfo>
#include <QTimer>
#include <QTranslator>

#include "backends/posix/DrivePaths.h"
#include "backends/posix/IniRegistry.h"
#include "backends/posix/IniSettings.h"
#include "backends/posix/PosixFiles.h"
#include "backends/posix/PosixFolders.h"
#include "backends/posix/PosixProcesses.h"
#include "backends/posix/PosixProgramFolders.h"
#include "backends/posix/PosixStateFolder.h"
#include "backends/qt/QtBackend.h"
#include "backends/qt/QtClipboard.h"
#include "backends/qt/QtFonts.h"
#include "backends/qt/Shot.h"
#include "backends/qt/X11Windows.h"
#include "forms/Form.h"

namespace lumenote {

namespace {

/// The program's application object, made when the host has none.
class OwnApplication {
 public:
  OwnApplication() {
    if (QCoreApplication::instance()) return;
    application_ = std::make_unique<QApplication>(count_, names_);
    // The toolkit's own dialogs speak French as the editor does.
    if (french_.load(QStringLiteral("qtbase_fr"),
                     QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
      QCoreApplication::installTranslator(&french_);
  }

 private:
  char name_[9] = "Lumenote";
  char* names_[2] = {name_, nullptr};
  int count_ = 1;
  QTranslator french_;
  std::unique_ptr<QApplication> application_;
};

/// Programs that nobody asks after are collected from time to time, lest they stay as zombies.
class CollectedProcesses final : public PosixProcesses {
 public:
  CollectedProcesses(DrivePaths drives, ProgramWindows& windows)
      : PosixProcesses(std::move(drives), &windows) {
    QObject::connect(&timer_, &QTimer::timeout, [this] {
      Collect();
      if (Idle()) timer_.stop();
    });
  }

  ProcessId Start(std::u16string_view commandLine) override {
    timer_.start(kInterval);
    return PosixProcesses::Start(commandLine);
  }

 private:
  static constexpr int kInterval = 1000;  // milliseconds

  QTimer timer_;
};

}  // namespace

struct QtPlatform::Parts {
  OwnApplication application;
  DrivePaths drives = DrivePaths::OfUser();
  QtBackend windows;
  QtClipboard clipboard;
  QtFonts fonts;
  PosixStateFolder state{PosixStateFolder::OfUser(), drives};
  PosixFiles files{drives, &state};
  IniSettings settings;
  IniRegistry registry;
  PosixProgramFolders programFolders{drives};
  X11Windows programWindows;
  CollectedProcesses programs{drives, programWindows};
  PosixFolders folders{drives, [this] { return programs.HoldsFiles(); }};
};

QtPlatform::QtPlatform() : parts_(std::make_unique<Parts>()) {}

QtPlatform::~QtPlatform() = default;

Backend& QtPlatform::Windows() { return parts_->windows; }

Settings& QtPlatform::UserSettings() { return parts_->settings; }

Files& QtPlatform::FileSystem() { return parts_->files; }

Folders& QtPlatform::SpecialFolders() { return parts_->folders; }

StateFolder& QtPlatform::State() { return parts_->state; }

Clipboard& QtPlatform::SystemClipboard() { return parts_->clipboard; }

const Fonts& QtPlatform::SystemFonts() { return parts_->fonts; }

const Registry& QtPlatform::MachineRegistry() { return parts_->registry; }

const ProgramFolders& QtPlatform::InstalledPrograms() { return parts_->programFolders; }

Processes& QtPlatform::Programs() { return parts_->programs; }

std::u16string QtPlatform::ToDrivePath(std::string_view native) const {
  return parts_->drives.ToDrivePath(native);
}

bool QtPlatform::SaveShot(const Form& form, const std::string& path) {
  return SaveWindowShot(parts_->windows.Widgets(), form, QString::fromStdString(path));
}

}  // namespace lumenote

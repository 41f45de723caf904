// The launcher on Qt.
#include <QApplication>
#include <optional>
#include <vector>

#include "Launcher.h"
#include "SuddenEnds.h"
#include "backends/qt/QtBackend.h"
#include "backends/qt/QtUserActs.h"
#include "backends/qt/windows/Shot.h"
#include "lumenote/QtPlatform.h"

using namespace lumenote;

namespace {

/// Its application object is made with the first need for windows, so that help needs no display.
class QtDesktop final : public Desktop {
 public:
  QtDesktop(int& argc, char** argv) : argc_(argc), argv_(argv) {}

  Platform& Machine() override {
    NeedApplication();
    if (!platform_) platform_.emplace();
    return *platform_;
  }
  std::u16string ToDrivePath(std::string_view native) override {
    Machine();
    return platform_->ToDrivePath(native);
  }
  Backend& ScriptWindows() override {
    NeedApplication();
    if (!windows_) windows_.emplace();
    return *windows_;
  }
  UserActs& ScriptUser() override {
    ScriptWindows();
    if (!user_) user_.emplace(*windows_);
    return *user_;
  }
  void Capture(const Form& form, const std::string& png) override {
    QtBackend& shown = windows_ ? *windows_ : static_cast<QtBackend&>(Machine().Windows());
    SaveWindowShot(shown.Widgets(), form, QString::fromStdString(png));
  }
  std::shared_ptr<void> WatchEnds(std::function<void()> keep) override {
    return std::make_shared<SuddenEnds>(std::move(keep));
  }

 private:
  void NeedApplication() {
    if (!application_) application_.emplace(argc_, argv_);
  }

  int& argc_;
  char** argv_;
  std::optional<QApplication> application_;
  std::optional<QtPlatform> platform_;
  std::optional<QtBackend> windows_;
  std::optional<QtUserActs> user_;
};

}  // namespace

int main(int argc, char** argv) {
  const std::vector<std::string_view> arguments(argv + 1, argv + argc);
  QtDesktop desktop(argc, argv);
  return Launch(arguments, desktop);
}

// The launcher, whatever desktop it is built for.
#pragma once
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "lumenote/Platform.h"

namespace lumenote {

class Backend;
class Document;
class Form;
class UserActs;

/// What the launcher needs of its desktop.
class Desktop {
 public:
  virtual ~Desktop() = default;
  /// The user's own machine.
  virtual Platform& Machine() = 0;
  /// The drive-letter path of a native path.
  virtual std::u16string ToDrivePath(std::string_view native) = 0;
  /// Windows without the user's machine, for scripts, and their user.
  virtual Backend& ScriptWindows() = 0;
  virtual UserActs& ScriptUser() = 0;
  /// Renders a window to a PNG file. Raises PathAccess if that cannot be written.
  virtual void Capture(const Form& form, const std::string& png) = 0;
  /// A note will come and go through the standard streams, byte for byte; if nobody reads it, that
  /// is an error like others.
  virtual void UseStandardStreams() = 0;
  /// No window will be shown: nothing needs a display. To be called first.
  virtual void WorkWithoutDisplay() {}
  /// The note as a PDF file. Raises InvalidArgument on a desktop without printing.
  virtual std::string Pdf(const Document& note, std::u16string_view title);
  /// Calls `keep` before the program ends without a chance to save, as long as the result lives.
  virtual std::shared_ptr<void> WatchEnds(std::function<void()> keep) = 0;
};

/// A desktop over one backend: the public platform, its backend and the acts of its user. Each is
/// made with the first need for it.
template <class SystemPlatform, class Windows, class Acts>
class SystemDesktop : public Desktop {
 public:
  Platform& Machine() override { return OwnMachine(); }
  std::u16string ToDrivePath(std::string_view native) override {
    return OwnMachine().ToDrivePath(native);
  }
  Windows& ScriptWindows() override {
    Prepare();
    if (!windows_) windows_.emplace();
    return *windows_;
  }
  UserActs& ScriptUser() override {
    if (!user_) user_.emplace(ScriptWindows());
    return *user_;
  }

 protected:
  /// Does what must precede the first window.
  virtual void Prepare() {}
  /// The windows in use: those of scripts, else the machine's.
  Windows& Shown() { return windows_ ? *windows_ : static_cast<Windows&>(Machine().Windows()); }

 private:
  SystemPlatform& OwnMachine() {
    Prepare();
    if (!platform_) platform_.emplace();
    return *platform_;
  }

  std::optional<SystemPlatform> platform_;
  std::optional<Windows> windows_;
  std::optional<Acts> user_;
};

/// Runs the program; the arguments exclude its name. Returns the exit status.
int Launch(std::span<const std::string_view> arguments, Desktop& desktop);

}  // namespace lumenote

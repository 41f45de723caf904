// The launcher, whatever desktop it is built for.
#pragma once
#include <functional>
#include <memory>
#include <span>
#include <string>
#include <string_view>

#include "lumenote/Platform.h"

namespace lumenote {

class Backend;
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
  /// Calls `keep` before the program ends without a chance to save, as long as the result lives.
  virtual std::shared_ptr<void> WatchEnds(std::function<void()> keep) = 0;
};

/// Runs the program; the arguments exclude its name. Returns the exit status.
int Launch(std::span<const std::string_view> arguments, Desktop& desktop);

}  // namespace lumenote

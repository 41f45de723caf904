// Starting, watching and ending other programs.
#pragma once
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace lumenote {

/// Identifies a started program; never reused. 0 is none.
using ProcessId = std::int64_t;

/// A system failure: the system's own error number and message.
struct SystemError {
  int number = 0;
  std::u16string description;
};

/// No call blocks on a program. Paths are drive-letter paths.
class Processes {
 public:
  virtual ~Processes() = default;

  /// Starts a program in a normal window, without a shell; `commandLine` follows the rules of
  /// `SplitCommandLine`. Raises FileNotFound, PathNotFound or PathAccess.
  virtual ProcessId Start(std::u16string_view commandLine) = 0;
  /// Opens a page, a file or a mail to an address with the program that the desktop has for it;
  /// does nothing if it has none, or if the file is a program itself.
  virtual void Open(std::u16string_view address) = 0;
  /// Whether the program still runs, or a process that it left running in its place, or an instance
  /// that it passed its file to, as far as the system can tell; false for one never started.
  virtual bool IsRunning(ProcessId process) = 0;
  /// Asks every process of the program at `path` to end, as politely as the program allows: those
  /// started here, and the user's own processes of exactly that executable, no others. Empty if all
  /// were asked.
  virtual std::optional<SystemError> Terminate(std::u16string_view path) = 0;
  /// An error as long as a process of the program at `path` still runs, else empty.
  virtual std::optional<SystemError> StillRunning(std::u16string_view path) = 0;
};

}  // namespace lumenote

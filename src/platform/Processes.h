// Programs that the component starts, watches and asks to end.
#pragma once
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace lumenote {

/// A started program; never used again for another one. None is 0.
using ProcessId = std::int64_t;

/// A failure of the system in its own number and words.
struct SystemError {
  int number = 0;
  std::u16string description;
};

/// No call waits for a program. Paths are drive-letter paths.
class Processes {
 public:
  virtual ~Processes() = default;

  /// Starts a program as a normal window, without a shell; `commandLine` follows the rules of
  /// `SplitCommandLine`. Raises FileNotFound, PathNotFound or PathAccess.
  virtual ProcessId Start(std::u16string_view commandLine) = 0;
  /// Whether the program still runs, or anything that it has left running in its place, or an
  /// instance that it has handed its file over to, as far as the system tells; false for one that
  /// was never started.
  virtual bool IsRunning(ProcessId process) = 0;
  /// Asks what runs of the program at `path` to end, in the politest way that it offers: what this
  /// has started itself, and the user's own processes of exactly that executable; nothing else is
  /// touched. Empty when all were asked.
  virtual std::optional<SystemError> Terminate(std::u16string_view path) = 0;
  /// An error while something of the program at `path` goes on running, else empty.
  virtual std::optional<SystemError> Lingering(std::u16string_view path) = 0;
};

}  // namespace lumenote

// Windows of other programs, where the desktop tells about them.
#pragma once
#include <string_view>
#include <sys/types.h>
#include <vector>

namespace lumenote {

class ProgramWindows {
 public:
  virtual ~ProgramWindows() = default;

  /// Asks the windows of these processes to close, as their close boxes do, so that a program can
  /// ask about unsaved work. False if there is none to ask.
  virtual bool AskToClose(const std::vector<pid_t>& processes) = 0;
  /// Whether the title of a window of another program contains `text` (UTF-8).
  virtual bool AnyTitleContains(std::string_view text) const = 0;
};

}  // namespace lumenote

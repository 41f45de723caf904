// The windows of other programs, where the desktop tells of them.
#pragma once
#include <string_view>
#include <sys/types.h>
#include <vector>

namespace lumenote {

class ProgramWindows {
 public:
  virtual ~ProgramWindows() = default;

  /// Asks the windows of these processes to close, as their close boxes do, so that a program can
  /// ask its user what to do with unsaved work. False when there is none to ask.
  virtual bool AskToClose(const std::vector<pid_t>& processes) = 0;
  /// Whether a window of another program bears `text`, UTF-8, in its title.
  virtual bool Show(std::string_view text) const = 0;
};

}  // namespace lumenote

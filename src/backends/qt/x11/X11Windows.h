// Other programs' windows on an X11 desktop.
#pragma once
#include "backends/posix/programs/ProgramWindows.h"

namespace lumenote {

/// Knows the windows that the window manager lists, and of those the ones that tell their process,
/// on this machine. Knows none where the desktop is not X11's.
class X11Windows final : public ProgramWindows {
 public:
  /// Only windows that can be asked, by the protocol for it; none is ever closed by force.
  bool AskToClose(const std::vector<pid_t>& processes) override;
  bool Show(std::string_view text) const override;
};

}  // namespace lumenote

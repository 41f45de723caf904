// Other programs' windows on an X11 desktop.
#pragma once
#include "backends/native/programs/ProgramWindows.h"

namespace lumenote {

/// Knows the windows that the window manager lists and that name a process on this machine; none on
/// other platforms than X11.
class X11Windows final : public ProgramWindows {
 public:
  /// Only windows that support the protocol are asked; none is closed by force.
  bool AskToClose(const std::vector<pid_t>& processes) override;
  bool AnyTitleContains(std::string_view text) const override;
};

}  // namespace lumenote

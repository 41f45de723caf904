// The windows of other programs.
#pragma once
#include "backends/native/programs/ProgramWindows.h"

namespace lumenote {

class TopWindows final : public ProgramWindows {
 public:
  bool AskToClose(const std::vector<pid_t>& processes) override;
  bool AnyTitleContains(std::string_view text) const override;
};

}  // namespace lumenote

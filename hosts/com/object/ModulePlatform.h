// The machine that a control works on.
#pragma once
#include "../support/Module.h"
#include "backends/headless/HeadlessBackend.h"
#include "pilot/machine/PilotPlatform.h"
#include "pilot/machine/ReportedFonts.h"
#include "pilot/sandbox/FolderSandbox.h"

namespace lumenote {

/// Lets the host's events come while it waits.
class HostLoop final : public HeadlessBackend {
 public:
  void RunUntil(const std::function<bool()>& done) override {
    MSG message;
    while (!done() && GetMessageW(&message, nullptr, 0, 0) > 0) DispatchMessageW(&message);
    if (!done()) PostQuitMessage(static_cast<int>(message.wParam));
  }
};

struct ModuleParts {
  FolderSandbox sandbox;
  HostLoop windows;
  ReportedFonts fonts;
};

/// Windows that are not shown, and a sandbox, until there are native ones. The DLL stays loaded
/// until the last event of the control's windows has returned.
class ModulePlatform final : ModuleLock, ModuleParts, public PilotPlatform {
 public:
  ModulePlatform() : PilotPlatform(sandbox, windows, fonts) {}
};

}  // namespace lumenote

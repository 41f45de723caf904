// The machine that a control works on.
#pragma once
#include "../support/Module.h"
#include "lumenote/Win32Platform.h"

namespace lumenote {

/// The DLL stays loaded until the last event of the control's windows has returned.
class ModulePlatform final : ModuleLock, public Win32Platform {};

}  // namespace lumenote

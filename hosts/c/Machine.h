// The machine that the controls of a library work on.
#pragma once
#include <memory>

#include "lumenote/Platform.h"

namespace lumenote {

/// One for the whole process, made with the first need for it.
std::shared_ptr<Platform> TheMachine();

/// Dispatches the events of its windows; waits for them up to `milliseconds` if there are none.
void Pump(int milliseconds);

}  // namespace lumenote

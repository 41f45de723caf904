// Whether there is a display to show windows on.
#pragma once

namespace lumenote {

/// Raises InvalidArgument (5) without one: making an application object would end the process. A
/// chosen Qt platform ("offscreen") or a Wayland session counts as a display.
void RequireDisplay();

}  // namespace lumenote

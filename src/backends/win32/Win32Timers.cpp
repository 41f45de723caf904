#include "backends/win32/Win32Timers.h"

#include <algorithm>

namespace lumenote {

Win32Timers::Win32Timers()
    : window_(std::make_shared<Window>(HWND_MESSAGE, WindowKind{OwnClass(L"LumenoteTimers")})) {
  window_->Listener(this);
}

Win32Timers::~Win32Timers() { window_->Listener(nullptr); }

void Win32Timers::Arm(Timer& timer) {
  armed_[++last_] = {&timer};
  SetTimer(window_->Handle(), last_, static_cast<UINT>(timer.Interval()), nullptr);
}

void Win32Timers::Disarm(Timer& timer) {
  const auto found =
      std::ranges::find_if(armed_, [&](const auto& entry) { return entry.second.timer == &timer; });
  if (found == armed_.end()) return;
  KillTimer(window_->Handle(), found->first);
  armed_.erase(found);
}

// A tick may disarm any timer; a number is never used again.
std::optional<LRESULT> Win32Timers::Hear(const Message& message) {
  if (message.id != WM_TIMER) return std::nullopt;
  const auto due = armed_.find(message.w);
  if (due == armed_.end() || due->second.ticking) return 0;
  const std::shared_ptr<Window> kept = window_;
  due->second.ticking = true;
  due->second.timer->Elapsed();
  if (!kept->HasListener()) return 0;
  if (const auto still = armed_.find(message.w); still != armed_.end())
    still->second.ticking = false;
  return 0;
}

}  // namespace lumenote

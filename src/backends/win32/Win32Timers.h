// The forms' timers in whatever loop the thread runs.
#pragma once
#include <memory>
#include <unordered_map>

#include "backends/win32/toolkit/Window.h"
#include "forms/Timer.h"

namespace lumenote {

/// A timer never ticks during its own tick.
class Win32Timers final : private MessageListener {
 public:
  Win32Timers();
  ~Win32Timers() override;

  void Arm(Timer& timer);
  void Disarm(Timer& timer);

 private:
  std::optional<LRESULT> Hear(const Message& message) override;
  std::optional<LRESULT> HearNotice(const Message&) override { return std::nullopt; }

  struct Armed {
    Timer* timer;
    bool ticking = false;
  };

  std::shared_ptr<Window> window_;
  std::unordered_map<UINT_PTR, Armed> armed_;
  UINT_PTR last_ = 0;
};

}  // namespace lumenote

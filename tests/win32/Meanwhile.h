// What happens while a program's own loop, or one of the system's, runs.
#pragma once
#include <functional>

#include "backends/win32/system/System.h"

namespace lumenote {

/// Calls a function from the thread's message loops, again and again until it says true. A later
/// one takes the place of an earlier one while it lives.
class Meanwhile {
 public:
  explicit Meanwhile(std::function<bool()> act) : act_(std::move(act)), before_(current_) {
    current_ = this;
    timer_ = SetTimer(nullptr, 0, 10, &Meanwhile::Tick);
  }
  ~Meanwhile() {
    KillTimer(nullptr, timer_);
    current_ = before_;
  }
  Meanwhile(const Meanwhile&) = delete;
  Meanwhile& operator=(const Meanwhile&) = delete;

 private:
  static void CALLBACK Tick(HWND, UINT, UINT_PTR, DWORD) {
    if (current_ && !current_->done_ && current_->act_()) current_->done_ = true;
  }

  static inline thread_local Meanwhile* current_ = nullptr;
  std::function<bool()> act_;
  Meanwhile* before_;
  UINT_PTR timer_ = 0;
  bool done_ = false;
};

}  // namespace lumenote

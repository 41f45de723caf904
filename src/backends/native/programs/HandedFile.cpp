#include "backends/native/programs/HandedFile.h"

#include <algorithm>

namespace lumenote {
namespace {

using std::chrono::milliseconds;
using std::chrono::seconds;

// A program that passes its file on exits within the first time; the file's window appears within
// the second.
constexpr seconds kHandsOverWithin(10);
constexpr seconds kShownWithin(2);
constexpr milliseconds kBetweenLooks(250);

}  // namespace

bool HandedFile::IsOpen(const ProgramWindows& windows) {
  if (IsNone()) return false;
  const Clock::time_point now = Clock::now();
  end_ = std::min(end_, now);
  if (now >= nextLook_) {
    shown_ = windows.AnyTitleContains(name_);
    nextLook_ = now + kBetweenLooks;
  }
  return shown_ || (end_ < start_ + kHandsOverWithin && now < end_ + kShownWithin);
}

}  // namespace lumenote

// A file that a program may have passed on to a running instance of itself.
#pragma once
#include <chrono>
#include <string>

#include "backends/native/programs/ProgramWindows.h"

namespace lumenote {

/// A program that passes its file on ends soon after its start; a window that shows the file's name
/// then appears, and stays as long as somebody works on the file.
class HandedFile {
 public:
  /// `name` is the file's, without a path; empty for a program without a file.
  explicit HandedFile(std::string name) : name_(std::move(name)) {}

  bool IsNone() const { return name_.empty(); }
  /// Whether a window shows the file, or may soon; call after the program has ended.
  bool IsOpen(const ProgramWindows& windows);

 private:
  using Clock = std::chrono::steady_clock;

  std::string name_;
  Clock::time_point start_ = Clock::now();
  Clock::time_point end_ = Clock::time_point::max();  // of the program, as first seen
  Clock::time_point nextLook_ = start_;
  bool shown_ = false;
};

}  // namespace lumenote

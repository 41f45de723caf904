// How far a command on many files has come.
#pragma once
#include <cstddef>
#include <string_view>

namespace lumenote::tool {

/// Tells on standard error which file is next, when a terminal is there to see it.
class Progress {
 public:
  explicit Progress(std::size_t total);
  void Next(std::string_view name);

 private:
  std::size_t total_;
  std::size_t done_ = 0;
  bool shown_;
};

}  // namespace lumenote::tool

// Progress of a command over many files.
#pragma once
#include <cstddef>
#include <string_view>

namespace lumenote::tool {

/// Prints the next file on standard error if that is a terminal.
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

// Progress as lines on a terminal.
#include "Progress.h"

#include <iostream>
#include <unistd.h>

namespace lumenote::tool {

Progress::Progress(std::size_t total) : total_(total), shown_(isatty(STDERR_FILENO) == 1) {}

void Progress::Next(std::string_view name) {
  ++done_;
  if (shown_) std::cerr << '[' << done_ << '/' << total_ << "] " << name << '\n';
}

}  // namespace lumenote::tool

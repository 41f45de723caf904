// Goes through notes, with progress as lines on a terminal.
#include "EachNote.h"

#include <iostream>
#include <unistd.h>

#include "Command.h"

namespace lumenote::tool {

int ForEachNote(const std::vector<std::string>& names,
                const std::function<void(const std::string& name)>& act) {
  const bool shown = names.size() > 1 && isatty(STDERR_FILENO) == 1;
  int status = 0;
  for (std::size_t i = 0; i < names.size(); ++i) {
    if (shown) std::cerr << '[' << i + 1 << '/' << names.size() << "] " << names[i] << '\n';
    try {
      act(names[i]);
    } catch (const Failure& failure) {
      std::cerr << "lumenote : " << failure.what() << '\n';
      status = 1;
    }
  }
  return status;
}

std::string Titled(const std::string& name, const std::string& lines) {
  return "==> " + name + " <==\n" + lines;
}

}  // namespace lumenote::tool

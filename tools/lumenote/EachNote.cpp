// Goes through notes, with progress as lines on a terminal.
#include "EachNote.h"

#include <iostream>
#include <unistd.h>

#include "Command.h"

namespace lumenote::tool {

int ForEachNote(const std::vector<NoteName>& notes,
                const std::function<void(const NoteName& note)>& act) {
  const bool shown = notes.size() > 1 && isatty(STDERR_FILENO) == 1;
  int status = 0;
  for (std::size_t i = 0; i < notes.size(); ++i) {
    if (shown) std::cerr << '[' << i + 1 << '/' << notes.size() << "] " << notes[i].path << '\n';
    try {
      act(notes[i]);
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

// Goes through notes on all processors, with progress as lines on a terminal.
#include "EachNote.h"

#include <algorithm>
#include <deque>
#include <future>
#include <iostream>
#include <thread>
#include <unistd.h>

#include "Command.h"

namespace lumenote::tool {
namespace {

// Standard input is read in its turn, and so is a note for which there is no thread to be had.
std::future<Finish> Start(const NoteName& note,
                          const std::function<Finish(const NoteName& note)>& work) {
  const auto when =
      note.path == "-" ? std::launch::deferred : std::launch::async | std::launch::deferred;
  return std::async(when, work, std::cref(note));
}

}  // namespace

int ForEachNote(const std::vector<NoteName>& notes,
                const std::function<Finish(const NoteName& note)>& work) {
  const std::size_t atOnce = std::max(1U, std::thread::hardware_concurrency());
  const bool shown = notes.size() > 1 && isatty(STDERR_FILENO) == 1;
  std::deque<std::future<Finish>> running;
  std::size_t started = 0;
  int status = 0;
  for (std::size_t i = 0; i < notes.size(); ++i) {
    for (; started < notes.size() && running.size() < atOnce; ++started)
      running.push_back(Start(notes[started], work));
    if (shown) std::cerr << '[' << i + 1 << '/' << notes.size() << "] " << notes[i].path << '\n';
    try {
      running.front().get()();
    } catch (const Failure& failure) {
      std::cerr << "lumenote : " << failure.what() << '\n';
      status = 1;
    }
    running.pop_front();
  }
  return status;
}

std::string Titled(const std::string& name, const std::string& lines) {
  return "==> " + name + " <==\n" + lines;
}

}  // namespace lumenote::tool

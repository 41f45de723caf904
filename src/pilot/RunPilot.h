// Driving the component from a script.
#pragma once
#include <functional>
#include <iosfwd>

namespace lumenote {

class Backend;
class Form;
class Sandbox;
class UserActs;

/// Everything a run needs; all of it outlives the run.
struct PilotRun {
  std::istream& script;  // UTF-8, one command a line
  std::ostream& out;     // the answers
  std::ostream& err;     // what went wrong
  Sandbox& sandbox;
  Backend& backend;  // realises the windows
  UserActs& acts;    // performs the user's acts on them
  /// Called with the active window behind the last command, while everything is still open; not
  /// when there is none. May be empty.
  std::function<void(const Form&)> atEnd = {};
};

/// Runs the script on a control of its own and returns the exit status: 0; 1 when an expectation
/// failed, a window differed from its state or queued answers were left over; 2 when a line could
/// not be understood.
int RunPilot(const PilotRun& run);

}  // namespace lumenote

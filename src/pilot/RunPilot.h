// Drives the component from a script.
#pragma once
#include <functional>
#include <iosfwd>

namespace lumenote {

class Backend;
class Form;
class Sandbox;
class UserActs;

/// The parts of a run; all must outlive it.
struct PilotRun {
  std::istream& script;  // UTF-8, one command per line
  std::ostream& out;     // results
  std::ostream& err;     // errors
  Sandbox& sandbox;
  Backend& backend;  // realises the windows
  UserActs& acts;    // simulates user input
  /// Called with the active window, if any, after the last command while everything is still open.
  /// May be empty.
  std::function<void(const Form&)> atEnd = {};
};

/// Runs the script on a control of its own. Returns the exit status: 0; 1 if an expectation failed,
/// a native window differed from its form, or queued answers were left over; 2 if a line was
/// invalid.
int RunPilot(const PilotRun& run);

}  // namespace lumenote

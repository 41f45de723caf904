// Failures of a script line other than the component's run-time errors.
#pragma once
#include <stdexcept>

namespace lumenote {

/// The line is invalid: the script is wrong. The text is UTF-8.
class ScriptError : public std::runtime_error {
  using std::runtime_error::runtime_error;
};

/// The line is valid, but its object cannot be used now, just as the user could not use it.
class Refusal : public std::runtime_error {
  using std::runtime_error::runtime_error;
};

}  // namespace lumenote

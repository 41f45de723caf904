// Why a line of a script was not carried out, beside the run-time errors of the component.
#pragma once
#include <stdexcept>

namespace lumenote {

/// The line cannot be understood: the script is wrong. The text is UTF-8.
class ScriptError : public std::runtime_error {
  using std::runtime_error::runtime_error;
};

/// The line is understood, but what it names cannot be used now, as the user could not either.
class Refusal : public std::runtime_error {
  using std::runtime_error::runtime_error;
};

}  // namespace lumenote

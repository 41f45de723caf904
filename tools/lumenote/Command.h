// The tool's commands.
#pragma once
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>

namespace lumenote::tool {

using Arguments = std::span<const std::string_view>;

/// Why a command failed: one line in French, printed on standard error; exit status 1.
class Failure : public std::runtime_error {
  using std::runtime_error::runtime_error;
};

/// Each takes the arguments after its name and returns the exit status. Raises `CommandLineError`
/// for invalid arguments.
int Text(Arguments arguments);
int Convert(Arguments arguments);
int Pilot(Arguments arguments);
int Clean(Arguments arguments);
int Link(Arguments arguments);
int Links(Arguments arguments);

/// Runs the command that the arguments, the program's name left out, begin with. Prints what fails
/// and returns the exit status.
int RunTool(std::span<const std::string> arguments);

}  // namespace lumenote::tool

// The commands of the tool.
#pragma once
#include <span>
#include <stdexcept>
#include <string_view>

namespace lumenote::tool {

using Arguments = std::span<const std::string_view>;

/// What kept a command from doing its work: one line in French, told on standard error; exit
/// status 1.
class Failure : public std::runtime_error {
  using std::runtime_error::runtime_error;
};

/// Each gets what follows its name and returns the exit status. Raises `CommandLineError` for
/// arguments that cannot be understood.
int Text(Arguments arguments);
int Convert(Arguments arguments);
int Pilot(Arguments arguments);
int Clean(Arguments arguments);
int Link(Arguments arguments);
int Links(Arguments arguments);

}  // namespace lumenote::tool

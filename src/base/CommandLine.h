// Parses command lines: options by name, operands in order.
#pragma once
#include <map>
#include <optional>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace lumenote {

/// An option as the user types it ("--title"). If it takes a value, that is the next argument or
/// whatever follows "=".
struct OptionRule {
  std::string_view name;
  bool takesValue = false;
};

class CommandLineError : public std::runtime_error {
  using std::runtime_error::runtime_error;
};

class CommandLine {
 public:
  /// `arguments` excludes the program's name. "--" ends the options; "-" is an operand. Raises
  /// CommandLineError, with a French description, for an unknown option or a missing value.
  CommandLine(std::span<const std::string_view> arguments, std::span<const OptionRule> rules);

  bool Has(std::string_view option) const { return options_.contains(option); }
  /// The last value given for the option.
  std::optional<std::string> Value(std::string_view option) const;
  const std::vector<std::string>& Operands() const { return operands_; }

 private:
  /// Consumes the option `argument` and, if it takes a value, that value from the front of `rest`.
  void TakeOption(std::string_view argument, std::span<const std::string_view>& rest,
                  std::span<const OptionRule> rules);

  std::map<std::string, std::string, std::less<>> options_;
  std::vector<std::string> operands_;
};

}  // namespace lumenote

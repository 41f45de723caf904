#include "base/CommandLine.h"

#include <algorithm>

namespace lumenote {

namespace {

const OptionRule& RuleOf(std::string_view name, std::span<const OptionRule> rules) {
  const auto rule = std::find_if(rules.begin(), rules.end(),
                                 [&](const OptionRule& known) { return known.name == name; });
  if (rule == rules.end()) throw CommandLineError("option inconnue : " + std::string(name));
  return *rule;
}

}  // namespace

CommandLine::CommandLine(std::span<const std::string_view> arguments,
                         std::span<const OptionRule> rules) {
  while (!arguments.empty()) {
    const std::string_view argument = arguments.front();
    arguments = arguments.subspan(1);
    if (argument == "--") break;
    if (argument.size() < 2 || argument.front() != '-')
      operands_.emplace_back(argument);
    else
      TakeOption(argument, arguments, rules);
  }
  operands_.insert(operands_.end(), arguments.begin(), arguments.end());
}

void CommandLine::TakeOption(std::string_view argument, std::span<const std::string_view>& rest,
                             std::span<const OptionRule> rules) {
  const std::size_t equals = argument.find('=');
  const bool attached = equals != argument.npos;
  const OptionRule& rule = RuleOf(argument.substr(0, equals), rules);
  std::string value;
  if (attached) {
    if (!rule.takesValue) throw CommandLineError("valeur inattendue : " + std::string(argument));
    value = argument.substr(equals + 1);
  } else if (rule.takesValue) {
    if (rest.empty()) throw CommandLineError("valeur manquante : " + std::string(argument));
    value = rest.front();
    rest = rest.subspan(1);
  }
  options_.insert_or_assign(std::string(rule.name), std::move(value));
}

std::optional<std::string> CommandLine::Value(std::string_view option) const {
  const auto found = options_.find(option);
  if (found == options_.end()) return {};
  return found->second;
}

}  // namespace lumenote

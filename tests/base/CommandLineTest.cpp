// Command lines, well-formed and not.
#include <gtest/gtest.h>

#include "base/CommandLine.h"

namespace lumenote {
namespace {

constexpr OptionRule kRules[] = {{"--title", true}, {"--readonly"}, {"-o", true}};

/// What was read, options first, or the error.
std::string Read(std::vector<std::string_view> arguments) {
  try {
    const CommandLine line(arguments, kRules);
    std::string read = "title=" + line.Value("--title").value_or("none");
    if (line.Has("--readonly")) read += " readonly";
    for (const std::string& operand : line.Operands()) read += " [" + operand + "]";
    return read;
  } catch (const CommandLineError& error) {
    return error.what();
  }
}

TEST(CommandLine, IsReadOrRefused) {
  const struct {
    std::vector<std::string_view> arguments;
    const char* expected;
  } cases[] = {{{}, "title=none"},
               {{"--title", "Été", "a.rtf"}, "title=Été [a.rtf]"},
               {{"--title=a=b", "--readonly", "-"}, "title=a=b readonly [-]"},
               {{"--title", "--readonly", "x"}, "title=--readonly [x]"},
               {{"--title=1", "--title=2"}, "title=2"},
               {{"--", "--title", "--"}, "title=none [--title] [--]"},
               {{"", "-o", ""}, "title=none []"},
               {{"--title"}, "valeur manquante : --title"},
               {{"--readonly=yes"}, "valeur inattendue : --readonly=yes"},
               {{"--titre", "x"}, "option inconnue : --titre"},
               {{"-x=1"}, "option inconnue : -x"}};
  for (const auto& [arguments, expected] : cases) EXPECT_EQ(Read(arguments), expected);
}

}  // namespace
}  // namespace lumenote

// Any command line is read or refused with its own error; any two paths are two words of one.
#include <algorithm>
#include <vector>

#include "Target.h"
#include "base/CommandLine.h"
#include "base/Strings.h"
#include "platform/Paths.h"
#include "platform/ProgramCommand.h"

using namespace lumenote;

/// A path without a quote is never escaped, though a backslash at its end would need it.
static void CheckWords(const std::u16string& program, const std::u16string& file) {
  if (!file.empty() && file.back() == u'\\' && file.find(u'"') == file.npos) return;
  const auto words = SplitCommandLine(QuotedProgram(program) + u" " + Quoted(file));
  Check(words == std::vector{FoldBackslashes(program), FoldBackslashes(file)});
}

void Try(std::string_view rest) {
  constexpr OptionRule kRules[] = {{"--title", true}, {"--readonly"}, {"-o", true}};
  std::vector<std::string_view> arguments;
  while (!rest.empty()) {
    const std::size_t end = std::min(rest.find('\n'), rest.size());
    arguments.push_back(rest.substr(0, end));
    rest.remove_prefix(std::min(end + 1, rest.size()));
  }
  if (arguments.size() > 1) CheckWords(FromUtf8(arguments[0]), FromUtf8(arguments[1]));
  try {
    const CommandLine line(arguments, kRules);
    (void)line.Value("--title");
  } catch (const CommandLineError&) {
  }
}

// Any command line is read or refused with its own error.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

#include "base/CommandLine.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace lumenote;
  constexpr OptionRule kRules[] = {{"--title", true}, {"--readonly"}, {"-o", true}};
  std::string_view rest(reinterpret_cast<const char*>(data), size);
  std::vector<std::string_view> arguments;
  while (!rest.empty()) {
    const std::size_t end = std::min(rest.find('\n'), rest.size());
    arguments.push_back(rest.substr(0, end));
    rest.remove_prefix(std::min(end + 1, rest.size()));
  }
  try {
    const CommandLine line(arguments, kRules);
    (void)line.Value("--title");
  } catch (const CommandLineError&) {
  }
  return 0;
}

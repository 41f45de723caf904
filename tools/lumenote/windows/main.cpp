#include <vector>

#include "Command.h"
#include "backends/win32/programs/ConsoleProgram.h"

int wmain(int argc, wchar_t** argv) {
  lumenote::UseUtf8Streams();
  const std::vector<std::string> arguments = lumenote::Utf8Arguments(argc - 1, argv + 1);
  return lumenote::tool::RunTool(arguments);
}

#include <vector>

#include "Command.h"

int main(int argc, char** argv) {
  const std::vector<std::string> arguments(argv + 1, argv + argc);
  return lumenote::tool::RunTool(arguments);
}

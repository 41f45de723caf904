// lumenote pilot: runs a script on headless windows.
#include <fstream>
#include <iostream>
#include <memory>

#include "Command.h"
#include "backends/headless/HeadlessActs.h"
#include "backends/headless/HeadlessBackend.h"
#include "base/CommandLine.h"
#include "pilot/RunPilot.h"
#include "pilot/posix/PosixSandbox.h"

namespace lumenote::tool {
namespace {

constexpr OptionRule kOptions[] = {{"--root", true}};

std::unique_ptr<PosixSandbox> MakeSandbox(const std::optional<std::string>& root) {
  try {
    return root ? std::make_unique<PosixSandbox>(*root) : std::make_unique<PosixSandbox>();
  } catch (const RuntimeError& error) {
    throw CommandLineError(root.value_or("/tmp") + " : " + error.what());
  }
}

}  // namespace

int Pilot(Arguments arguments) {
  const CommandLine line(arguments, kOptions);
  if (line.Operands().size() > 1) throw CommandLineError("un seul script est attendu");
  const std::string name = line.Operands().empty() ? "-" : line.Operands()[0];
  std::ifstream file;
  if (name != "-") file.open(name, std::ios::binary);
  if (!file) throw CommandLineError(name + " : lecture impossible");
  const std::unique_ptr<PosixSandbox> sandbox = MakeSandbox(line.Value("--root"));
  HeadlessBackend backend;
  HeadlessActs acts(backend);
  return RunPilot({name == "-" ? std::cin : file, std::cout, std::cerr, *sandbox, backend, acts});
}

}  // namespace lumenote::tool

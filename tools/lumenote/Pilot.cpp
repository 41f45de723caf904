// lumenote pilot: runs a script on headless windows.
#include <iostream>
#include <memory>
#include <sstream>

#include "Command.h"
#include "NoteFile.h"
#include "backends/headless/HeadlessActs.h"
#include "backends/headless/HeadlessBackend.h"
#include "base/CommandLine.h"
#include "pilot/RunPilot.h"
#include "pilot/sandbox/FolderSandbox.h"

namespace lumenote::tool {
namespace {

constexpr OptionRule kOptions[] = {{"--root", true}};

/// "-" is standard input, read line by line.
std::unique_ptr<std::istream> OpenScript(const std::string& name) {
  if (name == "-") return std::make_unique<std::istream>(std::cin.rdbuf());
  try {
    return std::make_unique<std::istringstream>(ReadBytes(name));
  } catch (const Failure& failure) {
    throw CommandLineError(failure.what());
  }
}

std::unique_ptr<FolderSandbox> MakeSandbox(const std::optional<std::string>& root) {
  try {
    return root ? std::make_unique<FolderSandbox>(*root) : std::make_unique<FolderSandbox>();
  } catch (const RuntimeError& error) {
    throw CommandLineError(root.value_or("dossier temporaire") + " : " + error.what());
  }
}

}  // namespace

int Pilot(Arguments arguments) {
  const CommandLine line(arguments, kOptions);
  if (line.Operands().size() > 1) throw CommandLineError("un seul script est attendu");
  const std::string name = line.Operands().empty() ? "-" : line.Operands()[0];
  const std::unique_ptr<std::istream> script = OpenScript(name);
  const std::unique_ptr<FolderSandbox> sandbox = MakeSandbox(line.Value("--root"));
  HeadlessBackend backend;
  HeadlessActs acts(backend);
  return RunPilot({*script, std::cout, std::cerr, *sandbox, backend, acts});
}

}  // namespace lumenote::tool

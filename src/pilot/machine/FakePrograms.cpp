#include "pilot/machine/FakePrograms.h"

#include <algorithm>
#include <utility>

#include "base/RuntimeError.h"
#include "platform/Files.h"
#include "platform/ProgramCommand.h"

namespace lumenote {
namespace {

constexpr std::string_view kContent = "stand-in program\r\n";

}  // namespace

ProcessId FakePrograms::Start(std::u16string_view commandLine) {
  const std::vector<std::u16string> words = SplitCommandLine(commandLine);
  if (words.empty()) throw RuntimeError(ErrorNumber::FileNotFound);
  if (files_.ReadAll(words[0]) != kContent) throw RuntimeError(ErrorNumber::PathAccess);
  started_.emplace_back(commandLine);
  running_.push_back({++last_, words[0]});
  return last_;
}

bool FakePrograms::IsRunning(ProcessId process) {
  return std::any_of(running_.begin(), running_.end(),
                     [&](const Running& program) { return program.id == process; });
}

std::optional<SystemError> FakePrograms::Terminate(std::u16string_view path) {
  const auto ended = std::erase_if(running_, [&](const Running& it) { return it.path == path; });
  killed_.insert(killed_.end(), ended, std::u16string(path));
  return std::nullopt;
}

std::optional<SystemError> FakePrograms::StillRunning(std::u16string_view) { return std::nullopt; }

void FakePrograms::Put(std::u16string_view path) { files_.Write(path, kContent); }

std::vector<std::u16string> FakePrograms::TakeStarted() { return std::exchange(started_, {}); }

std::vector<std::u16string> FakePrograms::TakeKilled() { return std::exchange(killed_, {}); }

}  // namespace lumenote

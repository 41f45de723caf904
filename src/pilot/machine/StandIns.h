// Programs that only seem to run: what scripts watch the component start and end.
#pragma once
#include <string>
#include <string_view>
#include <vector>

#include "platform/Processes.h"

namespace lumenote {

class Files;

/// A stand-in is a file with a content of its own. Once started it runs until it is finished or
/// terminated, even when its file goes; any other file cannot be started.
class StandIns final : public Processes {
 public:
  /// `files` outlives it.
  explicit StandIns(Files& files) : files_(files) {}

  ProcessId Start(std::u16string_view commandLine) override;
  bool IsRunning(ProcessId process) override;
  std::optional<SystemError> Terminate(std::u16string_view path) override;
  std::optional<SystemError> StillRunning(std::u16string_view path) override;

  /// Puts a stand-in at `path`, whose folder is there.
  void Put(std::u16string_view path);
  /// Ends everything that runs.
  void Finish() { running_.clear(); }
  /// The command lines started, and the paths of the programs terminated, since the last call.
  std::vector<std::u16string> TakeStarted();
  std::vector<std::u16string> TakeKilled();

 private:
  struct Running {
    ProcessId id;
    std::u16string path;
  };

  Files& files_;
  ProcessId last_ = 0;
  std::vector<Running> running_;
  std::vector<std::u16string> started_;
  std::vector<std::u16string> killed_;
};

}  // namespace lumenote

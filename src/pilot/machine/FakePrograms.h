// Fake programs: scripts watch the component start and end them.
#pragma once
#include <string>
#include <string_view>
#include <vector>

#include "platform/Processes.h"

namespace lumenote {

class Files;

/// A fake program is a file with special content. Once started it runs until it is finished or
/// terminated, even if its file is deleted; other files cannot be started.
class FakePrograms final : public Processes {
 public:
  /// `files` must outlive it.
  explicit FakePrograms(Files& files) : files_(files) {}

  ProcessId Start(std::u16string_view commandLine) override;
  /// Counts as started.
  void Open(std::u16string_view address) override { started_.emplace_back(address); }
  bool IsRunning(ProcessId process) override;
  std::optional<SystemError> Terminate(std::u16string_view path) override;
  std::optional<SystemError> StillRunning(std::u16string_view path) override;

  /// Creates a fake program at `path`, whose folder must exist.
  void Put(std::u16string_view path);
  /// Ends all running programs.
  void Finish() { running_.clear(); }
  /// The command lines started (paths of programs terminated) since the last call.
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

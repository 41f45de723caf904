// Program ends that give the user no chance to save.
#pragma once
#include <QSocketNotifier>
#include <functional>
#include <memory>

/// Calls `keep` before the program ends by SIGTERM, SIGHUP, SIGINT, the session's end or a lost
/// display; the end then takes its usual course. At most one instance, on the thread of the
/// application object, which must outlive it.
class SuddenEnds {
 public:
  explicit SuddenEnds(std::function<void()> keep);
  SuddenEnds(const SuddenEnds&) = delete;
  SuddenEnds& operator=(const SuddenEnds&) = delete;
  ~SuddenEnds();

 private:
  std::unique_ptr<QSocketNotifier> signals_;
  std::unique_ptr<QObject> session_;
};

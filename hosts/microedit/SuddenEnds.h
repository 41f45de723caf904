// Ends of the program that the user is not asked about.
#pragma once
#include <QSocketNotifier>
#include <functional>
#include <memory>

/// Calls `keep` before the program ends by SIGTERM, SIGHUP, SIGINT, the session's end or a lost
/// display. The end itself is the usual one: of the signal, of the connection. One at a time, on
/// the thread of the application object, which outlives it.
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

// Carries out a script line by line.
#pragma once
#include <functional>
#include <iosfwd>
#include <string>
#include <string_view>

#include "pilot/stage/Stage.h"
#include "pilot/verbs/Verbs.h"

namespace lumenote {

/// Lines may nest: while one waits for a window, the following ones are carried out inside it. The
/// stream and the stage outlive it.
class ScriptRunner final : public ScriptLines {
 public:
  /// `atEnd` is called once, behind the last line and before anything is closed.
  ScriptRunner(std::istream& script, Stage& stage, std::function<void()> atEnd);

  /// Runs the whole script, then closes what is open.
  void Run();

  bool RunLine() override;
  bool CloseTop() override;

 private:
  bool ReadLine();
  void CarryOut(std::string_view line);
  /// Prints what `act` answers or what stopped it.
  void Guarded(const std::function<Answer()>& act);
  /// Windows that do not look as their state says.
  void CompareWindows();

  std::istream& script_;
  Stage& stage_;
  std::function<void()> atEnd_;
  std::string line_;
  int number_ = 0;
};

}  // namespace lumenote

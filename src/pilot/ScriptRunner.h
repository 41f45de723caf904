// Executes a script line by line.
#pragma once
#include <functional>
#include <iosfwd>
#include <string>
#include <string_view>

#include "pilot/context/ScriptContext.h"
#include "pilot/verbs/Verbs.h"

namespace lumenote {

/// Execution nests: while a line waits for a window, the following lines run inside it. Stream and
/// context must outlive this object.
class ScriptRunner final : public ScriptLines {
 public:
  /// `atEnd` is called once, after the last line and before anything is closed.
  ScriptRunner(std::istream& script, ScriptContext& context, std::function<void()> atEnd);

  /// Runs the whole script, then closes all open windows.
  void Run();

  bool RunLine() override;
  bool CloseTop() override;

 private:
  bool ReadLine();
  void CarryOut(std::string_view line);
  /// Prints the result of `act`, or its error.
  void Guarded(const std::function<Answer()>& act);
  /// Reports native windows that differ from their forms.
  void CompareWindows();

  std::istream& script_;
  ScriptContext& context_;
  std::function<void()> atEnd_;
  std::string line_;
  int number_ = 0;
};

}  // namespace lumenote

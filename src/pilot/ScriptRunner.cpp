// Reads lines, executes them and prints their results.
#include "pilot/ScriptRunner.h"

#include <algorithm>
#include <istream>
#include <utility>

#include "base/Strings.h"
#include "forms/Form.h"
#include "pilot/language/Arguments.h"
#include "pilot/language/ScriptError.h"
#include "pilot/verbs/Verbs.h"

namespace lumenote {
namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

}  // namespace

ScriptRunner::ScriptRunner(std::istream& script, ScriptContext& context,
                           std::function<void()> atEnd)
    : script_(script), context_(context), atEnd_(std::move(atEnd)) {
  context_.backend.Script(*this);
}

void ScriptRunner::Run() {
  while (RunLine()) {
  }
  Guarded([this] {
    while (CloseTop()) {
    }
    return Answer();
  });
}

bool ScriptRunner::RunLine() {
  if (!ReadLine()) {
    if (const auto atEnd = std::exchange(atEnd_, {})) atEnd();
    return false;
  }
  const std::string line = line_;
  const int number = number_;
  context_.transcript.At(number, line);
  CarryOut(line);
  context_.transcript.At(number, line);
  CompareWindows();
  return true;
}

bool ScriptRunner::ReadLine() {
  if (!std::getline(script_, line_)) return false;
  if (line_.ends_with('\r')) line_.pop_back();
  if (number_ == 0 && line_.starts_with(kByteOrderMark)) line_.erase(0, kByteOrderMark.size());
  ++number_;
  return true;
}

void ScriptRunner::CarryOut(std::string_view line) {
  std::string_view rest = line;
  const std::string_view name = TakeVerb(rest);
  if (name.empty()) return;
  Guarded([&] {
    if (!IsUtf8(line)) throw ScriptError("line is not UTF-8");
    const Verb verb = FindVerb(name);
    if (!verb) throw ScriptError("unknown verb " + std::string(name));
    Arguments arguments(rest);
    return verb(context_, arguments);
  });
}

void ScriptRunner::Guarded(const std::function<Answer()>& act) {
  Transcript& transcript = context_.transcript;
  const auto print = [&](const RuntimeError& error) {
    transcript.Print(ErrorValue(error.Number(), error.Description()));
  };
  const PilotBackend::FailureTrap trap(context_.backend);
  try {
    const Answer answer = act();
    if (trap.Caught())
      print(*trap.Caught());
    else if (answer)
      transcript.Print(*answer);
  } catch (const RuntimeError& error) {
    print(error);
  } catch (const Refusal& refusal) {
    transcript.Print(ErrorValue(u"pilot", FromUtf8(refusal.what())));
  } catch (const ScriptError& error) {
    transcript.NotUnderstood(error.what());
  }
}

void ScriptRunner::CompareWindows() {
  for (const Form* form : context_.Windows().Loaded()) {
    if (!form->Peer()) continue;
    for (const std::string& difference : form->Peer()->Differences())
      context_.transcript.Fault(form->Name() + ": " + difference);
  }
}

bool ScriptRunner::CloseTop() {
  const auto& loaded = context_.Windows().Loaded();
  for (std::size_t i = loaded.size(); i-- > 0;) {
    Form* form = loaded[i];
    form->UserClose();
    if (std::find(loaded.begin(), loaded.end(), form) == loaded.end()) return true;
  }
  return false;
}

}  // namespace lumenote

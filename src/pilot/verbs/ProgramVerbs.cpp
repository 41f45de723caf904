// The external programs that the component starts and ends.
#include <utility>

#include "pilot/context/ScriptContext.h"
#include "pilot/language/Arguments.h"
#include "pilot/machine/FakePrograms.h"
#include "pilot/verbs/Verbs.h"

namespace lumenote::verbs {
namespace {

Value ArrayOf(std::vector<std::u16string> texts) {
  Value::Array array;
  for (std::u16string& text : texts) array.emplace_back(std::move(text));
  return array;
}

}  // namespace

Answer PutProgram(ScriptContext& context, Arguments& arguments) {
  const std::u16string path = arguments.Text();
  arguments.End();
  context.sandbox.MakeParents(path);
  context.sandbox.Programs().Put(path);
  return {};
}

Answer Started(ScriptContext& context, Arguments& arguments) {
  arguments.End();
  return ArrayOf(context.sandbox.Programs().TakeStarted());
}

Answer Killed(ScriptContext& context, Arguments& arguments) {
  arguments.End();
  return ArrayOf(context.sandbox.Programs().TakeKilled());
}

Answer Finish(ScriptContext& context, Arguments& arguments) {
  arguments.End();
  context.sandbox.Programs().Finish();
  return {};
}

}  // namespace lumenote::verbs

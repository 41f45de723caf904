// The external programs that the component starts and ends.
#include <utility>

#include "pilot/language/Arguments.h"
#include "pilot/machine/StandIns.h"
#include "pilot/stage/Stage.h"
#include "pilot/verbs/Verbs.h"

namespace lumenote::verbs {
namespace {

Value ArrayOf(std::vector<std::u16string> texts) {
  Value::Array array;
  for (std::u16string& text : texts) array.emplace_back(std::move(text));
  return array;
}

}  // namespace

Answer PutProgram(Stage& stage, Arguments& arguments) {
  const std::u16string path = arguments.Text();
  arguments.End();
  stage.sandbox.MakeParents(path);
  stage.sandbox.Programs().Put(path);
  return {};
}

Answer Started(Stage& stage, Arguments& arguments) {
  arguments.End();
  return ArrayOf(stage.sandbox.Programs().TakeStarted());
}

Answer Killed(Stage& stage, Arguments& arguments) {
  arguments.End();
  return ArrayOf(stage.sandbox.Programs().TakeKilled());
}

Answer Finish(Stage& stage, Arguments& arguments) {
  arguments.End();
  stage.sandbox.Programs().Finish();
  return {};
}

}  // namespace lumenote::verbs

// Expectations about the last line printed.
#include "pilot/language/Arguments.h"
#include "pilot/stage/Stage.h"
#include "pilot/verbs/Verbs.h"

namespace lumenote::verbs {
namespace {

Value ReadWanted(Arguments& arguments) {
  Value wanted = arguments.Json();
  arguments.End();
  return wanted;
}

std::string ReadName(Arguments& arguments) {
  std::string name = arguments.Name();
  arguments.End();
  return name;
}

}  // namespace

Answer Expect(Stage& stage, Arguments& arguments) {
  stage.transcript.Expect(ReadWanted(arguments));
  return {};
}

Answer ExpectHas(Stage& stage, Arguments& arguments) {
  stage.transcript.ExpectHas(ReadWanted(arguments));
  return {};
}

Answer ExpectLike(Stage& stage, Arguments& arguments) {
  stage.transcript.ExpectLike(arguments.Rest());
  return {};
}

Answer Keep(Stage& stage, Arguments& arguments) {
  stage.transcript.Keep(ReadName(arguments));
  return {};
}

Answer ExpectKept(Stage& stage, Arguments& arguments) {
  stage.transcript.ExpectKept(ReadName(arguments));
  return {};
}

}  // namespace lumenote::verbs

// Expectations about the last line printed.
#include "pilot/context/ScriptContext.h"
#include "pilot/language/Arguments.h"
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

Answer Expect(ScriptContext& context, Arguments& arguments) {
  context.transcript.Expect(ReadWanted(arguments));
  return {};
}

Answer ExpectHas(ScriptContext& context, Arguments& arguments) {
  context.transcript.ExpectHas(ReadWanted(arguments));
  return {};
}

Answer ExpectLike(ScriptContext& context, Arguments& arguments) {
  context.transcript.ExpectLike(arguments.Rest());
  return {};
}

Answer Keep(ScriptContext& context, Arguments& arguments) {
  context.transcript.Keep(ReadName(arguments));
  return {};
}

Answer ExpectKept(ScriptContext& context, Arguments& arguments) {
  context.transcript.ExpectKept(ReadName(arguments));
  return {};
}

}  // namespace lumenote::verbs

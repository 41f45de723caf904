// Reading and assigning members by name.
#include "pilot/Arguments.h"
#include "pilot/Objects.h"
#include "pilot/Stage.h"
#include "pilot/Verbs.h"

namespace lumenote::verbs {

Answer Get(Stage& stage, Arguments& arguments) {
  const std::string path = arguments.Name();
  arguments.End();
  return ReadMember(stage, path);
}

Answer Set(Stage& stage, Arguments& arguments) {
  const std::string path = arguments.Name();
  const Value value = arguments.Any();
  arguments.End();
  WriteMember(stage, path, value);
  return {};
}

}  // namespace lumenote::verbs

// Reading and assigning members by name.
#include <string>
#include <vector>

#include "pilot/language/Arguments.h"
#include "pilot/stage/Objects.h"
#include "pilot/stage/Stage.h"
#include "pilot/verbs/Verbs.h"

namespace lumenote::verbs {

Answer Get(Stage& stage, Arguments& arguments) {
  std::vector<std::string> paths{arguments.Name()};
  while (!arguments.AtEnd()) paths.push_back(arguments.Name());
  if (paths.size() == 1) return ReadMember(stage, paths.front());
  Value::Array values;
  for (const std::string& path : paths) values.push_back(ReadMember(stage, path));
  return Value(std::move(values));
}

Answer Set(Stage& stage, Arguments& arguments) {
  const std::string path = arguments.Name();
  const Value value = arguments.Any();
  arguments.End();
  WriteMember(stage, path, value);
  return {};
}

}  // namespace lumenote::verbs

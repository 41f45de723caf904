// Reading and assigning members by name.
#include <string>
#include <vector>

#include "pilot/context/Objects.h"
#include "pilot/context/ScriptContext.h"
#include "pilot/language/Arguments.h"
#include "pilot/verbs/Verbs.h"

namespace lumenote::verbs {

Answer Get(ScriptContext& context, Arguments& arguments) {
  std::vector<std::string> paths{arguments.Name()};
  while (!arguments.AtEnd()) paths.push_back(arguments.Name());
  if (paths.size() == 1) return ReadMember(context, paths.front());
  Value::Array values;
  for (const std::string& path : paths) values.push_back(ReadMember(context, path));
  return Value(std::move(values));
}

Answer Set(ScriptContext& context, Arguments& arguments) {
  const std::string path = arguments.Name();
  const Value value = arguments.Any();
  arguments.End();
  WriteMember(context, path, value);
  return {};
}

}  // namespace lumenote::verbs

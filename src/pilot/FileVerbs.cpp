// The files of the sandbox, as scripts lay them out and look at them.
#include "base/Windows1252.h"
#include "pilot/Arguments.h"
#include "pilot/ScriptError.h"
#include "pilot/Stage.h"
#include "pilot/Verbs.h"
#include "platform/Files.h"

namespace lumenote::verbs {

Answer File(Stage& stage, Arguments& arguments) {
  const std::u16string path = arguments.Text();
  const std::u16string content = arguments.Text();
  arguments.End();
  if (!Fits1252(content)) throw ScriptError("a character outside code page 1252");
  stage.sandbox.MakeParents(path);
  stage.sandbox.FileSystem().Write(path, Encode1252(content));
  return {};
}

Answer Cat(Stage& stage, Arguments& arguments) {
  const std::u16string path = arguments.Text();
  arguments.End();
  const Files& files = stage.sandbox.FileSystem();
  return files.Exists(path) ? Value(Decode1252(files.ReadAll(path))) : Value();
}

Answer Ls(Stage& stage, Arguments& arguments) {
  const std::u16string path = arguments.Text();
  arguments.End();
  Value::Array names;
  for (std::u16string& name : stage.sandbox.List(path)) names.emplace_back(std::move(name));
  return names;
}

Answer Rm(Stage& stage, Arguments& arguments) {
  const std::u16string path = arguments.Text();
  arguments.End();
  stage.sandbox.Remove(path);
  return {};
}

Answer ReadOnly(Stage& stage, Arguments& arguments) {
  const std::u16string path = arguments.Text();
  const bool on = arguments.Flag();
  arguments.End();
  stage.sandbox.ReadOnly(path, on);
  return {};
}

Answer Touch(Stage& stage, Arguments& arguments) {
  constexpr std::int64_t kSeconds = 10;
  const std::u16string path = arguments.Text();
  arguments.End();
  stage.sandbox.Age(path, kSeconds);
  return {};
}

}  // namespace lumenote::verbs

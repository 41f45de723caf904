// Finding and reading a correction list.
#include "ListFile.h"

#include "Command.h"
#include "NoteFile.h"
#include "base/RuntimeError.h"
#include "base/Strings.h"

namespace lumenote::tool {

ListFile::ListFile(const std::string& name) {
  if (name.empty()) return;
  const std::string bytes = ReadBytes(name);
  try {
    path_ = DrivePaths{"/"}.ToDrivePath(Absolute(name));
  } catch (const RuntimeError& error) {
    throw Failure(name + " : " + error.what());
  }
  ReadPairs(name, bytes);
}

void ListFile::ReadPairs(const std::string& name, const std::string& bytes) {
  CorrectionReader reader(bytes);
  try {
    while (const auto pair = reader.Next()) pairs_.push_back(*pair);
  } catch (const RuntimeError& error) {
    // The description names the line behind a line end.
    throw Failure(name + " : " + ToUtf8(ReplaceEvery(error.Description(), u"\r\n", u" : ")));
  }
}

}  // namespace lumenote::tool

// Finds and reads a correction list.
#include "ListFile.h"

#include "Command.h"
#include "NoteFile.h"
#include "base/RuntimeError.h"
#include "base/Strings.h"

namespace lumenote::tool {

ListFile::ListFile(const std::string& name) {
  if (name.empty()) return;
  bytes_ = ReadBytes(name);
  CorrectionReader reader(bytes_);
  try {
    while (const auto pair = reader.Next()) pairs_.push_back(*pair);
  } catch (const RuntimeError& error) {
    // The description says the line behind the name that lists have in the editor.
    constexpr std::u16string_view kUsualName = u"\r\nListCorr.txt, ";
    throw Failure(name + " : " + ToUtf8(ReplaceEvery(error.Description(), kUsualName, u" : ")));
  }
}

}  // namespace lumenote::tool

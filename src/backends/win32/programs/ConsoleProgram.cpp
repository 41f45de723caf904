#include "backends/win32/programs/ConsoleProgram.h"

#include <cstdio>
#include <fcntl.h>
#include <io.h>

#include "backends/win32/files/WideNames.h"
#include "backends/win32/system/System.h"
#include "base/Strings.h"

namespace lumenote {

std::vector<std::string> Utf8Arguments(int count, wchar_t** arguments) {
  std::vector<std::string> texts;
  for (int i = 0; i < count; ++i) texts.push_back(ToUtf8(FromWide(arguments[i])));
  return texts;
}

void UseUtf8Streams() {
  for (std::FILE* stream : {stdin, stdout, stderr}) _setmode(_fileno(stream), _O_BINARY);
  SetConsoleOutputCP(CP_UTF8);
}

}  // namespace lumenote

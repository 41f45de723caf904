#include "backends/win32/folders/ShellFolders.h"

#include "backends/win32/files/WideNames.h"
#include "backends/win32/system/System.h"

namespace lumenote {

std::string ShellFolder(SpecialFolder folder) {
  wchar_t path[MAX_PATH];
  const HRESULT result = SHGetFolderPathW(nullptr, static_cast<int>(folder), nullptr, 0, path);
  return result == S_OK ? NativePath(path) : std::string();
}

}  // namespace lumenote

// The user's folders, as the shell knows them.
#include "backends/native/folders/UserFolders.h"

#include "backends/win32/files/WideNames.h"
#include "backends/win32/folders/ShellFolders.h"
#include "backends/win32/system/System.h"

namespace lumenote {

std::string DocumentsFolder() { return ShellFolder(SpecialFolder::Documents); }

std::string ComponentStateFolder() {
  const std::string folder = ShellFolder(SpecialFolder::LocalData);
  return folder.empty() ? folder : folder + "/Lumenote";
}

std::vector<std::string> TemporaryParents() {
  wchar_t path[MAX_PATH + 1];
  const DWORD length = GetTempPathW(MAX_PATH + 1, path);
  if (length == 0 || length > MAX_PATH) return {};
  std::string folder = NativePath({path, length});
  if (folder.ends_with('/')) folder.pop_back();
  return {folder};
}

}  // namespace lumenote

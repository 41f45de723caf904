#include "backends/native/folders/NativeProgramFolders.h"

#include "backends/win32/files/WideNames.h"
#include "backends/win32/folders/ShellFolders.h"
#include "backends/win32/system/System.h"
#include "base/RuntimeError.h"
#include "platform/Paths.h"

namespace lumenote {
namespace {

/// Its address identifies the file that the component was loaded from.
const char kInside = 0;

std::string OwnFile() {
  HMODULE module = nullptr;
  constexpr DWORD kHow =
      GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT;
  std::wstring path(32768, L'\0');
  if (!GetModuleHandleExW(kHow, reinterpret_cast<LPCWSTR>(&kInside), &module)) return {};
  path.resize(GetModuleFileNameW(module, path.data(), static_cast<DWORD>(path.size())));
  return NativePath(path);
}

}  // namespace

std::u16string NativeProgramFolders::Programs() const {
  std::u16string folder;
  IgnoringErrors([&] { folder = drives_.ToDrivePath(ShellFolder(SpecialFolder::Programs)); });
  return folder;
}

std::u16string NativeProgramFolders::Component() const {
  std::u16string file;
  IgnoringErrors([&] { file = drives_.ToDrivePath(OwnFile()); });
  return ParentFolder(file);
}

}  // namespace lumenote

#include "Module.h"

#include "backends/win32/toolkit/Window.h"

namespace lumenote {

std::wstring ModulePath() {
  std::wstring path(MAX_PATH, L'\0');
  for (;;) {
    const DWORD length = GetModuleFileNameW(OwnModule(), path.data(), DWORD(path.size()));
    if (length < path.size()) return path.substr(0, length);
    path.resize(path.size() * 2);
  }
}

ComPtr<ITypeInfo> DescriptionOf(const GUID& type) {
  ComPtr<ITypeLib> library;
  ComPtr<ITypeInfo> description;
  if (SUCCEEDED(LoadTypeLibEx(ModulePath().c_str(), REGKIND_NONE, library.Out())))
    library->GetTypeInfoOfGuid(type, description.Out());
  return description;
}

}  // namespace lumenote

#include "Module.h"

// The linker's name for the first byte of the image.
extern "C" IMAGE_DOS_HEADER __ImageBase;

namespace lumenote {

HINSTANCE ThisModule() { return reinterpret_cast<HINSTANCE>(&__ImageBase); }

std::wstring ModulePath() {
  std::wstring path(MAX_PATH, L'\0');
  for (;;) {
    const DWORD length = GetModuleFileNameW(ThisModule(), path.data(), DWORD(path.size()));
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

#include "backends/win32/settings/RegistryKey.h"

#include "backends/win32/files/WideNames.h"

namespace lumenote {

RegistryKey::RegistryKey(HKEY root, std::u16string_view path, REGSAM access) {
  if (RegOpenKeyExW(root, ToWide(path).c_str(), 0, access, &key_) != ERROR_SUCCESS) key_ = nullptr;
}

RegistryKey::~RegistryKey() {
  if (key_) RegCloseKey(key_);
}

std::optional<std::u16string> RegistryKey::Read(std::u16string_view name) const {
  const std::wstring wide = ToWide(name);
  DWORD size = 0;
  const auto read = [&](void* value) {
    return key_ ? RegGetValueW(key_, nullptr, wide.c_str(), RRF_RT_REG_SZ, nullptr, value, &size)
                : ERROR_FILE_NOT_FOUND;
  };
  std::wstring value;
  LSTATUS status = read(nullptr);
  while (status == ERROR_SUCCESS || status == ERROR_MORE_DATA) {
    value.resize(size / sizeof(wchar_t));
    size = static_cast<DWORD>(value.size() * sizeof(wchar_t));
    status = read(value.data());
    if (status == ERROR_SUCCESS) return FromWide(value.c_str());
  }
  return std::nullopt;
}

}  // namespace lumenote

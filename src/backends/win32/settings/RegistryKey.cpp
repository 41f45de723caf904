#include "backends/win32/settings/RegistryKey.h"

#include "backends/win32/files/WideNames.h"

namespace lumenote {

RegistryKey RegistryKey::Open(HKEY root, std::u16string_view path, REGSAM access) {
  HKEY key = nullptr;
  const LSTATUS status = RegOpenKeyExW(root, ToWide(path).c_str(), 0, access, &key);
  return RegistryKey(status == ERROR_SUCCESS ? key : nullptr);
}

RegistryKey RegistryKey::Create(HKEY root, std::u16string_view path) {
  HKEY key = nullptr;
  const LSTATUS status = RegCreateKeyExW(root, ToWide(path).c_str(), 0, nullptr, 0,
                                         KEY_READ | KEY_WRITE, nullptr, &key, nullptr);
  return RegistryKey(status == ERROR_SUCCESS ? key : nullptr);
}

std::optional<std::u16string> RegistryKey::Read(std::u16string_view name) const {
  const std::wstring wide = ToWide(name);
  std::wstring value;
  LSTATUS status = key_ ? ERROR_MORE_DATA : ERROR_FILE_NOT_FOUND;
  for (DWORD size = 256; status == ERROR_MORE_DATA;) {
    value.resize(size / sizeof(wchar_t) + 1);
    size = static_cast<DWORD>(value.size() * sizeof(wchar_t));
    status = RegGetValueW(key_.Get(), nullptr, wide.c_str(), RRF_RT_REG_SZ, nullptr, value.data(),
                          &size);
    if (status == ERROR_SUCCESS) value.resize(size / sizeof(wchar_t) - 1);  // without its end
  }
  if (status != ERROR_SUCCESS) return std::nullopt;
  return FromWide(value);
}

bool RegistryKey::Write(std::u16string_view name, std::u16string_view value) const {
  const std::wstring text = ToWide(value);
  const auto size = static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t));
  return key_ && RegSetValueExW(key_.Get(), ToWide(name).c_str(), 0, REG_SZ,
                                reinterpret_cast<const BYTE*>(text.c_str()), size) == ERROR_SUCCESS;
}

}  // namespace lumenote

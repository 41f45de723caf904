#include "ClassesKey.h"

namespace lumenote {

namespace {

std::wstring Full(const std::wstring& path) { return L"Software\\Classes\\" + path; }

void Check(LSTATUS status) {
  if (status != ERROR_SUCCESS) throw RegistryError{status};
}

}  // namespace

bool ClassesKey::Has(const std::wstring& path, REGSAM view) const {
  HKEY key = nullptr;
  if (RegOpenKeyExW(root_, Full(path).c_str(), 0, KEY_READ | view, &key) != ERROR_SUCCESS)
    return false;
  RegCloseKey(key);
  return true;
}

void ClassesKey::Write(const std::wstring& path, const std::wstring& name,
                       const std::wstring& value) const {
  const auto size = static_cast<DWORD>((value.size() + 1) * sizeof(wchar_t));
  Check(RegSetKeyValueW(root_, Full(path).c_str(), name.empty() ? nullptr : name.c_str(), REG_SZ,
                        value.c_str(), size));
}

void ClassesKey::Remove(const std::wstring& path) const {
  const LSTATUS status = RegDeleteTreeW(root_, Full(path).c_str());
  if (status != ERROR_FILE_NOT_FOUND) Check(status);
  const std::size_t around = path.rfind(L'\\');
  if (around != path.npos) RegDeleteKeyW(root_, Full(path.substr(0, around)).c_str());
}

}  // namespace lumenote

#include "backends/win32/settings/UserSettings.h"

#include "backends/win32/settings/RegistryKey.h"
#include "base/RuntimeError.h"

namespace lumenote {
namespace {

std::u16string KeyOf(std::u16string_view application, std::u16string_view section) {
  std::u16string path = u"Software\\VB and VBA Program Settings";
  for (const std::u16string_view name : {application, section})
    if (!name.empty()) path.append(u"\\").append(name);
  return path;
}

}  // namespace

std::optional<std::u16string> UserSettings::Read(std::u16string_view application,
                                                 std::u16string_view section,
                                                 std::u16string_view key) const {
  return RegistryKey::Open(HKEY_CURRENT_USER, KeyOf(application, section), KEY_READ).Read(key);
}

void UserSettings::Write(std::u16string_view application, std::u16string_view section,
                         std::u16string_view key, std::u16string_view value) {
  const RegistryKey place = RegistryKey::Create(HKEY_CURRENT_USER, KeyOf(application, section));
  if (!place.Write(key, value)) throw RuntimeError(ErrorNumber::PathAccess);
}

}  // namespace lumenote

// The registered classes of the machine or of one user.
#pragma once
#include <string>

#include "../support/Ole.h"

namespace lumenote {

/// An error of the registry.
struct RegistryError {
  LSTATUS status;
};

/// Paths are relative to the classes' key.
class ClassesKey {
 public:
  /// `root` is HKEY_LOCAL_MACHINE or HKEY_CURRENT_USER.
  explicit ClassesKey(HKEY root) : root_(root) {}

  /// `view` chooses the classes that programs of one width see: KEY_WOW64_32KEY or KEY_WOW64_64KEY;
  /// 0 for those of this program.
  bool Has(const std::wstring& path, REGSAM view = 0) const;
  /// Sets a value, the default one if `name` is empty. Creates missing keys. Raises RegistryError.
  void Write(const std::wstring& path, const std::wstring& name, const std::wstring& value) const;
  /// Removes a key, if it is there, with all that is in it, and the key around it if no other is
  /// left there. Raises RegistryError.
  void Remove(const std::wstring& path) const;

 private:
  HKEY root_;
};

}  // namespace lumenote

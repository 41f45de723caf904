// An open key of the system's registry.
#pragma once
#include <optional>
#include <string>
#include <string_view>

#include "backends/win32/system/OwnedHandle.h"
#include "backends/win32/system/System.h"

namespace lumenote {

/// Or none, which has no values and takes none.
class RegistryKey {
 public:
  /// An existing key, `path` below `root`.
  static RegistryKey Open(HKEY root, std::u16string_view path, REGSAM access);
  /// Made with its parents if it is missing.
  static RegistryKey Create(HKEY root, std::u16string_view path);

  /// A string; an empty name is the key's default value.
  std::optional<std::u16string> Read(std::u16string_view name) const;
  /// Returns whether it is stored.
  bool Write(std::u16string_view name, std::u16string_view value) const;

 private:
  explicit RegistryKey(HKEY key) : key_(key) {}

  struct Closing {
    void operator()(HKEY key) const { RegCloseKey(key); }
  };
  OwnedHandle<HKEY, Closing> key_;
};

}  // namespace lumenote

// An open key of the system's registry.
#pragma once
#include <optional>
#include <string>
#include <string_view>

#include "backends/win32/system/System.h"

namespace lumenote {

class RegistryKey {
 public:
  /// Opens an existing key; `path` below `root`.
  RegistryKey(HKEY root, std::u16string_view path, REGSAM access);
  RegistryKey(const RegistryKey&) = delete;
  RegistryKey& operator=(const RegistryKey&) = delete;
  ~RegistryKey();

  /// A string value; an empty name is the default value. Nothing if there is none, or no such key.
  std::optional<std::u16string> Read(std::u16string_view name) const;

 private:
  HKEY key_ = nullptr;
};

}  // namespace lumenote

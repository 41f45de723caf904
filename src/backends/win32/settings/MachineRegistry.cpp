// The system's registry below the local machine's root.
#include "backends/native/settings/MachineRegistry.h"

#include "backends/win32/settings/RegistryKey.h"

namespace lumenote {
namespace {

class SystemRegistry final : public Registry {
 public:
  /// Programs of the other width register in a view of their own.
  std::optional<std::u16string> Read(std::u16string_view key,
                                     std::u16string_view name) const override {
    for (const REGSAM view : {KEY_WOW64_64KEY, KEY_WOW64_32KEY})
      if (auto value = RegistryKey::Open(HKEY_LOCAL_MACHINE, key, KEY_READ | view).Read(name))
        return value;
    return std::nullopt;
  }
};

}  // namespace

std::unique_ptr<Registry> MakeMachineRegistry() { return std::make_unique<SystemRegistry>(); }

}  // namespace lumenote

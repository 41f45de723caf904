#include "backends/native/settings/MachineRegistry.h"

#include "backends/native/settings/IniRegistry.h"
#include "backends/posix/folders/UserFolders.h"

namespace lumenote {

std::unique_ptr<Registry> MakeMachineRegistry() {
  return std::make_unique<IniRegistry>(RegistryFiles());
}

}  // namespace lumenote

#include "control/Component.h"

#include "forms/Platform.h"

namespace lumenote {

Component::Component(Platform& platform)
    : temp(platform.SpecialFolders().MakeTemp()),
      windows(platform),
      editor([this] { return std::make_unique<Co_Rtf>(windows, session, *temp); }) {}

}  // namespace lumenote

#include "control/Component.h"

namespace lumenote {

Component::Component(Platform& platform)
    : windows(platform), editor([this] { return std::make_unique<Co_Rtf>(windows, session); }) {}

}  // namespace lumenote

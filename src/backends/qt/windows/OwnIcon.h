// The icon of the component's windows.
#pragma once
#include <QIcon>

namespace lumenote {

QIcon OwnIcon();

}  // namespace lumenote

#include "backends/qt/windows/OwnIcon.h"

// The resources of a static library are there only if somebody calls for them.
static void LoadResources() { Q_INIT_RESOURCE(lumenote); }

namespace lumenote {

QIcon OwnIcon() {
  LoadResources();
  QIcon icon;
  for (const int side : {16, 32, 48})
    icon.addFile(QStringLiteral(":/lumenote/lumenote-%1.png").arg(side));
  return icon;
}

}  // namespace lumenote

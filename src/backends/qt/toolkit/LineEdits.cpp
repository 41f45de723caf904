#include "backends/qt/toolkit/LineEdits.h"

#include <QMenu>

#include "backends/qt/toolkit/FrenchTexts.h"

namespace lumenote {

void GiveFrenchMenu(QLineEdit& line) {
  line.setContextMenuPolicy(Qt::CustomContextMenu);
  QObject::connect(&line, &QLineEdit::customContextMenuRequested, &line, [&line](QPoint at) {
    QMenu* const menu = line.createStandardContextMenu();
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->setFont(line.font());
    ShowInFrench(*menu);
    menu->popup(line.mapToGlobal(at));
  });
}

}  // namespace lumenote

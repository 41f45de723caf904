#include "backends/qt/QtFonts.h"

#include <QFontDatabase>
#include <QStringList>

#include "backends/qt/toolkit/QtText.h"

namespace lumenote {

std::vector<std::u16string> QtFonts::ScreenFonts() const {
  std::vector<std::u16string> names;
  for (const QString& family : QFontDatabase::families()) names.push_back(FromQString(family));
  return names;
}

int QtFonts::PrinterFontCount() const { return static_cast<int>(QFontDatabase::families().size()); }

}  // namespace lumenote

#include "backends/qt/QtFonts.h"

#include <QFontDatabase>
#include <QStringList>

#include "backends/qt/text/FontNames.h"
#include "backends/qt/toolkit/QtText.h"

namespace lumenote {

namespace {

/// Each family once.
QStringList Families() {
  QStringList names;
  for (const QString& family : QFontDatabase::families()) names.push_back(WithoutFoundry(family));
  names.removeDuplicates();
  return names;
}

}  // namespace

std::vector<std::u16string> QtFonts::ScreenFonts() const {
  std::vector<std::u16string> names;
  for (const QString& family : Families()) names.push_back(FromQString(family));
  return names;
}

int QtFonts::PrinterFontCount() const { return static_cast<int>(Families().size()); }

}  // namespace lumenote

#include "backends/qt/QtFonts.h"

#include <QFontDatabase>
#include <QStringList>

#include "backends/qt/toolkit/QtText.h"

namespace lumenote {

namespace {

/// Each family once, without the foundry that Qt puts behind the name if several have it.
QStringList Families() {
  QStringList names;
  for (const QString& family : QFontDatabase::families())
    names.push_back(family.left(family.indexOf(QStringLiteral(" ["))));
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

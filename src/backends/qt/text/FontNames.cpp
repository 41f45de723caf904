#include "backends/qt/text/FontNames.h"

#include <QFontDatabase>
#include <QHash>
#include <algorithm>
#include <array>

#include "backends/qt/toolkit/QtText.h"

namespace lumenote {

namespace {

struct StandIn {
  const char* wanted;  // lower case
  std::array<const char*, 2> families;
};

constexpr std::array<const char*, 2> kSans{"Liberation Sans", "DejaVu Sans"};
constexpr std::array<const char*, 2> kSerif{"Liberation Serif", "DejaVu Serif"};
constexpr std::array<const char*, 2> kMono{"Liberation Mono", "DejaVu Sans Mono"};
constexpr std::array<const char*, 2> kWide{"DejaVu Sans", "Liberation Sans"};

constexpr StandIn kStandIns[] = {
    {"arial", kSans},
    {"arial narrow", {"Liberation Sans Narrow", "Liberation Sans"}},
    {"calibri", {"Carlito", "Liberation Sans"}},
    {"cambria", {"Caladea", "Liberation Serif"}},
    {"comic sans ms", kWide},
    {"consolas", kMono},
    {"courier", kMono},
    {"courier new", kMono},
    {"fixedsys", kMono},
    {"garamond", kSerif},
    {"georgia", {"DejaVu Serif", "Liberation Serif"}},
    {"helvetica", kSans},
    {"lucida console", kMono},
    {"microsoft sans serif", kSans},
    {"ms sans serif", kSans},
    {"ms serif", kSerif},
    {"segoe ui", kSans},
    {"system", kSans},
    {"tahoma", {"DejaVu Sans Condensed", "DejaVu Sans"}},
    {"times", kSerif},
    {"times new roman", kSerif},
    {"verdana", kWide},
};

/// RTF font families that suggest a look.
enum Family { kRoman = 1, kModern = 3 };

template <class Names>
QString FirstPresent(const Names& families) {
  const auto found = std::find_if(families.begin(), families.end(), [](const char* family) {
    return QFontDatabase::hasFamily(QLatin1String(family));
  });
  return found == families.end() ? QString() : QLatin1String(*found);
}

const std::array<const char*, 2>& OfSameKind(const FontFace& face) {
  if (face.family == kRoman) return kSerif;
  return face.family == kModern ? kMono : kSans;
}

QString StandInFor(const QString& name, const FontFace& face) {
  const QString wanted = name.toLower();
  for (const StandIn& entry : kStandIns)
    if (wanted == QLatin1String(entry.wanted)) return FirstPresent(entry.families);
  return FirstPresent(OfSameKind(face));
}

QString FamilyFor(const QString& name, const FontFace& face) {
  if (IsInstalled(face)) return name;
  const QString standIn = StandInFor(name, face);
  return standIn.isEmpty() ? name : standIn;
}

constexpr int kControlPixels = 11;  // 8.25 points

}  // namespace

bool IsInstalled(const FontFace& face) {
  return !face.name.empty() && QFontDatabase::hasFamily(ToQString(face.name));
}

QString MachineFamily(const FontFace& face) {
  // Looking up a family costs more than laying out a line.
  static QHash<QPair<QString, int>, QString> known;
  const QString name = ToQString(face.name);
  const QPair<QString, int> key(name, face.family);
  if (const auto found = known.constFind(key); found != known.constEnd()) return *found;
  return *known.insert(key, FamilyFor(name, face));
}

QString WithoutFoundry(const QString& family) {
  return family.left(family.indexOf(QStringLiteral(" [")));
}

QFont ControlFont() {
  QFont font(MachineFamily({u"MS Sans Serif"}));
  font.setPixelSize(kControlPixels);
  return font;
}

}  // namespace lumenote

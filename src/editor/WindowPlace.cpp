#include "editor/WindowPlace.h"

#include "base/Numbers.h"
#include "base/RuntimeError.h"
#include "platform/Settings.h"

namespace lumenote {

namespace {

constexpr std::u16string_view kApplication = u"ZFenBxRtf";

struct Dimension {
  std::u16string_view key;
  float Rect::*side;
  float standard;
};

/// In the order in which they are read, applied and written.
constexpr Dimension kDimensions[] = {{u"DimRtfH", &Rect::height, 4350},
                                     {u"DimRtfW", &Rect::width, 5650},
                                     {u"DimRtfT", &Rect::top, 3250},
                                     {u"DimRtfL", &Rect::left, 5000}};

}  // namespace

Rect LireGeometrie(const Settings& settings, std::u16string_view section) {
  Rect place;
  for (const Dimension& dimension : kDimensions) {
    place.*dimension.side = dimension.standard;
    IgnoringErrors([&] {
      if (const auto stored = settings.Read(kApplication, section, dimension.key))
        place.*dimension.side = ParseSingle(*stored);
    });
  }
  return place;
}

void EcrireGeometrie(Settings& settings, std::u16string_view section, const Rect& place) {
  for (const Dimension& dimension : kDimensions)
    IgnoringErrors([&] {
      settings.Write(kApplication, section, dimension.key, NumberText(place.*dimension.side));
    });
}

}  // namespace lumenote

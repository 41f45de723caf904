#include "editor/storage/StoredGeometry.h"

#include "base/Numbers.h"
#include "base/RuntimeError.h"
#include "forms/Form.h"
#include "platform/Settings.h"

namespace lumenote {

namespace {

constexpr std::u16string_view kApplication = u"ZFenBxRtf";

struct Dimension {
  std::u16string_view key;
  float Rect::*side;
  float standard;
};

/// In the order of reading, applying and writing.
constexpr Dimension kDimensions[] = {{u"DimRtfH", &Rect::height, 4350},
                                     {u"DimRtfW", &Rect::width, 5650},
                                     {u"DimRtfT", &Rect::top, 3250},
                                     {u"DimRtfL", &Rect::left, 5000}};

Rect LireGeometrie(const Settings& settings, std::u16string_view section) {
  Rect bounds;
  for (const Dimension& dimension : kDimensions) {
    bounds.*dimension.side = dimension.standard;
    IgnoringErrors([&] {
      if (const auto stored = settings.Read(kApplication, section, dimension.key))
        bounds.*dimension.side = ParseSingle(*stored);
    });
  }
  return bounds;
}

}  // namespace

void RetablirGeometrie(Form& window, const Settings& settings, std::u16string_view section) {
  const Rect bounds = LireGeometrie(settings, section);
  IgnoringErrors([&] { window.Height(bounds.height); });
  IgnoringErrors([&] { window.Width(bounds.width); });
  window.Top(bounds.top);
  window.Left(bounds.left);
}

void EcrireGeometrie(Settings& settings, std::u16string_view section, const Rect& bounds) {
  for (const Dimension& dimension : kDimensions)
    IgnoringErrors([&] {
      settings.Write(kApplication, section, dimension.key, NumberText(bounds.*dimension.side));
    });
}

}  // namespace lumenote

#include "backends/win32/toolkit/drawing/Fonts.h"

#include "backends/win32/system/NativeText.h"
#include "base/Twips.h"

namespace lumenote {
namespace {

constexpr float kUsualSize = 8.25F;  // points

HFONT Make(const std::u16string& family, int pixels) {
  const std::u16string name = family.empty() ? u"MS Shell Dlg 2" : family;
  return CreateFontW(-pixels, 0, 0, 0, FW_NORMAL, FALSE, FALSE, FALSE, DEFAULT_CHARSET,
                     OUT_DEFAULT_PRECIS, CLIP_DEFAULT_PRECIS, CLEARTYPE_QUALITY,
                     DEFAULT_PITCH | FF_DONTCARE, Wide(name));
}

}  // namespace

HFONT ControlFonts::Get(const std::u16string& family, float points, Scale scale) {
  const int pixels = scale.Pixels((points > 0 ? points : kUsualSize) * kTwipsPerPoint);
  const auto [found, isNew] = fonts_.try_emplace({family, pixels}, GdiObject<HFONT>(nullptr));
  if (isNew) found->second = GdiObject<HFONT>(Make(family, pixels));
  return found->second.Get();
}

}  // namespace lumenote

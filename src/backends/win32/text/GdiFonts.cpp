#include "backends/win32/text/GdiFonts.h"

#include <algorithm>

#include "backends/win32/system/NativeText.h"
#include "backends/win32/text/LinkedFamilies.h"

namespace lumenote {

namespace {

void SetFamily(LOGFONTW& wanted, std::u16string_view family) {
  const std::size_t length = std::min<std::size_t>(family.size(), LF_FACESIZE - 1);
  std::fill(std::begin(wanted.lfFaceName), std::end(wanted.lfFaceName), L'\0');
  std::copy_n(family.begin(), length, wanted.lfFaceName);
}

TEXTMETRICW MetricsOf(HDC dc, HFONT font) {
  const SelectScope selected(dc, font);
  TEXTMETRICW metrics = {};
  GetTextMetricsW(dc, &metrics);
  return metrics;
}

LOGFONTW Wanted(HDC dc, const FontWish& wish) {
  LOGFONTW wanted = {};
  wanted.lfHeight = -wish.height;
  wanted.lfWeight = wish.bold ? FW_BOLD : FW_NORMAL;
  wanted.lfItalic = wish.italic;
  wanted.lfCharSet = wish.charset;
  wanted.lfPitchAndFamily = wish.pitchAndFamily;
  SetFamily(wanted, wish.family);
  if (wish.scale == 100) return wanted;
  const GdiObject<HFONT> unscaled(CreateFontIndirectW(&wanted));
  const LONG width = MetricsOf(dc, unscaled.Get()).tmAveCharWidth;
  wanted.lfWidth = std::max(1, MulDiv(width, wish.scale, 100));
  return wanted;
}

}  // namespace

GdiFont::GdiFont(HDC measuring, const LOGFONTW& wanted)
    : wanted_(wanted), font_(CreateFontIndirectW(&wanted)) {
  const TEXTMETRICW metrics = MetricsOf(measuring, font_.Get());
  ascent_ = metrics.tmAscent;
  descent_ = metrics.tmDescent;
  const SelectScope selected(measuring, font_.Get());
  SCRIPT_FONTPROPERTIES properties = {};
  properties.cBytes = sizeof properties;
  if (SUCCEEDED(ScriptGetFontProperties(measuring, &cache_, &properties)))
    missing_ = properties.wgDefault;
}

std::shared_ptr<const GdiFont> GdiFonts::Make(const LOGFONTW& wanted) {
  constexpr std::size_t kMaxFonts = 256;
  const std::string key(reinterpret_cast<const char*>(&wanted), sizeof wanted);
  if (const auto found = fonts_.find(key); found != fonts_.end()) return found->second;
  if (fonts_.size() >= kMaxFonts) fonts_.clear();
  return fonts_[key] = std::make_shared<GdiFont>(dc_.Get(), wanted);
}

std::shared_ptr<const GdiFont> GdiFonts::Of(const FontWish& wish) {
  return Make(Wanted(dc_.Get(), wish));
}

std::shared_ptr<const GdiFont> GdiFonts::Linked(const GdiFont& font, std::size_t number) {
  const std::vector<std::u16string>& families = LinkedFamilies(Utf16(font.Wanted().lfFaceName));
  if (number >= families.size()) return nullptr;
  LOGFONTW wanted = font.Wanted();
  wanted.lfCharSet = DEFAULT_CHARSET;
  wanted.lfPitchAndFamily = 0;
  SetFamily(wanted, families[number]);
  return Make(wanted);
}

}  // namespace lumenote

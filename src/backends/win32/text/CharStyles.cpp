#include "backends/win32/text/CharStyles.h"

#include <algorithm>
#include <cmath>

#include "backends/win32/toolkit/drawing/FontFamilies.h"
#include "base/Twips.h"
#include "view/layout/TextLayouter.h"

namespace lumenote {

namespace {

constexpr std::size_t kMaxStyles = 4096;
constexpr double kPixelsInPoint = 96.0 / 72;
constexpr int kMaxScale = 4000;  // per cent

FontWish WishOf(const FontFace& face, const CharFormat& format, double height) {
  constexpr std::uint8_t kSymbol = SYMBOL_CHARSET;
  constexpr BYTE kFamilies[] = {FF_DONTCARE, FF_ROMAN,  FF_SWISS,
                                FF_MODERN,   FF_SCRIPT, FF_DECORATIVE};
  FontWish wish{.family = face.name};
  wish.charset = face.charset == kSymbol ? SYMBOL_CHARSET : DEFAULT_CHARSET;
  if (face.family < std::size(kFamilies)) wish.pitchAndFamily = kFamilies[face.family];
  wish.height = std::max(1, static_cast<int>(std::lround(height)));
  wish.bold = format.effects & kBold;
  wish.italic = format.effects & kItalic;
  wish.scale = std::clamp<int>(format.scale, 1, kMaxScale);
  return wish;
}

bool IsInstalled(const FontFace& face) { return HasFamily(face.name); }

}  // namespace

const CharStyle& CharStyles::Of(const Document& document, CharId id) {
  if (const auto found = styles_.find(id); found != styles_.end()) return found->second;
  if (styles_.size() >= kMaxStyles) styles_.clear();
  return styles_.emplace(id, Make(document, document.Formats().characters[id])).first->second;
}

const CharStyle& CharStyles::Of(const Document& document, const CharFormat& format) {
  if (!lastStyle_ || !(lastFormat_ == format)) lastStyle_ = Make(document, format);
  lastFormat_ = format;
  return *lastStyle_;
}

CharStyle CharStyles::Make(const Document& document, const CharFormat& format) {
  CharStyle style{LookOf(document.Formats(), format, pixels_, ground_, IsInstalled), nullptr,
                  nullptr};
  FontFace face = document.Formats().fonts[format.font];
  if (style.signs != SymbolFont::None) face.charset = DEFAULT_CHARSET;  // another stands in
  const double height = style.points * kPixelsInPoint * pixels_;
  style.font = fonts_.Of(WishOf(face, format, height));
  if (style.smallCapitals)
    style.reduced = fonts_.Of(WishOf(face, format, height * kSmallCapitalSize));
  style.ascent = style.font->Ascent();
  style.descent = style.font->Descent();
  const double least = -style.points / 2;  // keeps characters in order
  style.spacing =
      static_cast<int>(std::lround(std::max(format.spacing / kTwipsPerPixel, least) * pixels_));
  return style;
}

void CharStyles::Zoom(double factor) {
  pixels_ = factor;
  Forget();
  fonts_.Forget();
}

void CharStyles::Ground(Colour colour) {
  ground_ = colour;
  Forget();
}

void CharStyles::Forget() {
  styles_.clear();
  lastStyle_.reset();
}

}  // namespace lumenote

// The fonts that the toolkit finds.
#pragma once
#include "platform/Fonts.h"

namespace lumenote {

class QtFonts final : public Fonts {
 public:
  std::vector<std::u16string> ScreenFonts() const override;
  /// The desktop prints with the fonts of the screen.
  int PrinterFontCount() const override;
};

}  // namespace lumenote

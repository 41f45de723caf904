// The fonts of screen and printer.
#pragma once
#include "platform/Fonts.h"

namespace lumenote {

class InstalledFonts final : public Fonts {
 public:
  std::vector<std::u16string> ScreenFonts() const override;
  int PrinterFontCount() const override;
};

}  // namespace lumenote

// The fonts known to Qt.
#pragma once
#include "platform/Fonts.h"

namespace lumenote {

class QtFonts final : public Fonts {
 public:
  std::vector<std::u16string> ScreenFonts() const override;
  /// Printers use the screen's fonts.
  int PrinterFontCount() const override;
};

}  // namespace lumenote

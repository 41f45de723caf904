// The fonts installed on the machine.
#pragma once
#include <string>
#include <vector>

namespace lumenote {

class Fonts {
 public:
  virtual ~Fonts() = default;
  /// Names of the screen fonts, in the system's order.
  virtual std::vector<std::u16string> ScreenFonts() const = 0;
  /// The number of fonts of the default printer. Raises Printer (482) without a printer.
  virtual int PrinterFontCount() const = 0;
};

}  // namespace lumenote

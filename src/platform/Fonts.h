// The fonts of the machine.
#pragma once
#include <string>
#include <vector>

namespace lumenote {

class Fonts {
 public:
  virtual ~Fonts() = default;
  /// Names of the fonts on the screen, in the system's order.
  virtual std::vector<std::u16string> ScreenFonts() const = 0;
  /// How many fonts the default printer has. Raises Printer (482) without a printer.
  virtual int PrinterFontCount() const = 0;
};

}  // namespace lumenote

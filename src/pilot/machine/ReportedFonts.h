// The fonts of the machine that a script runs on.
#pragma once
#include <optional>

#include "base/RuntimeError.h"
#include "platform/Fonts.h"

namespace lumenote {

/// What scripts let the machine report. It has a few fonts of its own, and a printer with all of
/// them, so that a script means the same everywhere.
struct ReportedFonts final : Fonts {
  std::vector<std::u16string> ScreenFonts() const override { return screen; }
  int PrinterFontCount() const override {
    if (!printer) throw RuntimeError(ErrorNumber::Printer);
    return *printer;
  }

  std::vector<std::u16string> screen{u"Arial", u"Courier New", u"Symbol", u"Times New Roman"};
  std::optional<int> printer = 4;  // empty without a printer
};

}  // namespace lumenote

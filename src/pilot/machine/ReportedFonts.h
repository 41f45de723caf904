// The fonts that a script's machine reports.
#pragma once
#include <optional>

#include "base/RuntimeError.h"
#include "platform/Fonts.h"

namespace lumenote {

/// Scripts may set them. The defaults are a few fixed fonts and a printer with all of them, so that
/// a script behaves the same everywhere.
struct ReportedFonts final : Fonts {
  std::vector<std::u16string> ScreenFonts() const override { return screen; }
  int PrinterFontCount() const override {
    if (!printer) throw RuntimeError(ErrorNumber::Printer);
    return *printer;
  }

  std::vector<std::u16string> screen{u"Arial", u"Courier New", u"Symbol", u"Times New Roman"};
  std::optional<int> printer = 4;  // empty: no printer
};

}  // namespace lumenote

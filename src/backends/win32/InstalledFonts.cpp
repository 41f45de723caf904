#include "backends/win32/InstalledFonts.h"

#include <algorithm>

#include "backends/win32/files/WideNames.h"
#include "backends/win32/toolkit/drawing/FontFamilies.h"
#include "backends/win32/toolkit/drawing/Gdi.h"
#include "base/RuntimeError.h"

namespace lumenote {

namespace {

/// Each family once; those for vertical text are left out.
std::vector<std::u16string> FamiliesOf(HDC device) {
  std::vector<std::u16string> names;
  ForEachFont(device, {}, [&](const LOGFONTW& font) {
    const std::u16string name = FromWide(font.lfFaceName);
    if (!name.starts_with(u'@') && std::ranges::find(names, name) == names.end())
      names.push_back(name);
    return true;
  });
  return names;
}

std::wstring DefaultPrinter() {
  DWORD size = 0;
  GetDefaultPrinterW(nullptr, &size);
  std::wstring name(size, L'\0');
  if (size == 0 || !GetDefaultPrinterW(name.data(), &size))
    throw RuntimeError(ErrorNumber::Printer);
  name.resize(size - 1);
  return name;
}

/// What a printer can do, asked without printing.
class PrinterScope {
 public:
  explicit PrinterScope(const std::wstring& name)
      : dc_(CreateICW(nullptr, name.c_str(), nullptr, nullptr)) {
    if (!dc_) throw RuntimeError(ErrorNumber::Printer);
  }
  PrinterScope(const PrinterScope&) = delete;
  PrinterScope& operator=(const PrinterScope&) = delete;
  ~PrinterScope() { DeleteDC(dc_); }

  HDC Get() const { return dc_; }

 private:
  HDC dc_;
};

}  // namespace

std::vector<std::u16string> InstalledFonts::ScreenFonts() const {
  return FamiliesOf(DcScope(nullptr).Get());
}

int InstalledFonts::PrinterFontCount() const {
  return static_cast<int>(FamiliesOf(PrinterScope(DefaultPrinter()).Get()).size());
}

}  // namespace lumenote

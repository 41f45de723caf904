#include "backends/win32/toolkit/drawing/Colours.h"

namespace lumenote {

bool HighContrast() {
  HIGHCONTRASTW state = {};
  state.cbSize = sizeof state;
  return SystemParametersInfoW(SPI_GETHIGHCONTRAST, sizeof state, &state, 0) &&
         (state.dwFlags & HCF_HIGHCONTRASTON) != 0;
}

}  // namespace lumenote

// A note to clean up: a surface without a window.
#pragma once
#include <string>

#include "backends/headless/FixedBreaker.h"
#include "base/ErrorOf.h"
#include "base/Strings.h"
#include "surface/DocumentSurface.h"
#include "surface/Fakes.h"

namespace lumenote {

inline constexpr std::u16string_view kList = u"C:\\ListCorr.txt";

struct Note {
  explicit Note(std::u16string_view text = {}) { surface.Text(text); }

  MemoryClipboard clipboard;
  MemoryFiles files;
  FixedBreaker breaker{5000};
  DocumentSurface surface{clipboard, files, breaker};
};

}  // namespace lumenote

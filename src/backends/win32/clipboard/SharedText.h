// Text in memory that programs pass to each other.
#pragma once
#include <algorithm>
#include <cstring>
#include <optional>

#include "backends/win32/system/System.h"

namespace lumenote {

/// A copy of the text with a zero unit at its end; null if there is no memory for it.
template <class Text>
HGLOBAL SharedCopy(const Text& text) {
  const std::size_t size = (text.size() + 1) * sizeof text[0];
  const HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, size);
  if (!memory) return nullptr;
  std::memcpy(GlobalLock(memory), text.c_str(), size);
  GlobalUnlock(memory);
  return memory;
}

/// What the memory holds up to the first zero unit; nothing if it is null or empty.
template <class Text>
std::optional<Text> TextIn(HGLOBAL memory) {
  using Unit = typename Text::value_type;
  const auto* units = memory ? static_cast<const Unit*>(GlobalLock(memory)) : nullptr;
  if (!units) return std::nullopt;
  const std::size_t size = GlobalSize(memory) / sizeof(Unit);
  Text text(units, std::find(units, units + size, Unit()));
  GlobalUnlock(memory);
  return text;
}

}  // namespace lumenote

// Memory that programs pass to each other.
#pragma once
#include <algorithm>
#include <cstring>
#include <optional>
#include <string>
#include <string_view>

#include "backends/win32/system/System.h"

namespace lumenote {

/// A copy of the bytes; null if there is no memory for it.
inline HGLOBAL SharedBytes(std::string_view bytes) {
  const HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, bytes.size());
  if (!memory) return nullptr;
  std::memcpy(GlobalLock(memory), bytes.data(), bytes.size());
  GlobalUnlock(memory);
  return memory;
}

/// The same of a text, with a zero unit at its end.
template <class Text>
HGLOBAL SharedCopy(const Text& text) {
  return SharedBytes({reinterpret_cast<const char*>(text.c_str()),  //
                      (text.size() + 1) * sizeof text[0]});
}

/// What the memory holds; empty if it is null.
inline std::string BytesIn(HGLOBAL memory) {
  const auto* bytes = memory ? static_cast<const char*>(GlobalLock(memory)) : nullptr;
  if (!bytes) return {};
  std::string copy(bytes, GlobalSize(memory));
  GlobalUnlock(memory);
  return copy;
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

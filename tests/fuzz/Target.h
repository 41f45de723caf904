// What every fuzz target is made of; included by its one file.
#pragma once
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

/// Ends the program when something does not hold.
inline void Check(bool holds) {
  if (!holds) std::abort();
}

/// What the target does with an input.
void Try(std::string_view bytes);

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  Try({reinterpret_cast<const char*>(data), size});
  return 0;
}

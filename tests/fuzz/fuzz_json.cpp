// Any bytes: what reads as JSON writes a text that reads as the same value.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "base/Value.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  std::string_view text(reinterpret_cast<const char*>(data), size);
  try {
    const lumenote::Value value = lumenote::ReadJson(text);
    const std::string written = lumenote::WriteJson(value);
    std::string_view again = written;
    if (!(lumenote::ReadJson(again) == value) || !again.empty()) std::abort();
  } catch (const lumenote::JsonError&) {
    return 0;
  }
  return 0;
}

// Any bytes as a settings file, and as names and a value: the value is found again, nothing is
// lost.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "backends/posix/settings/IniText.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string bytes(reinterpret_cast<const char*>(data), size);
  std::u16string name;
  for (std::size_t i = 0; i + 1 < std::min<std::size_t>(size, 64); i += 2) {
    name += static_cast<char16_t>(data[i] | data[i + 1] << 8);
  }
  lumenote::IniText text(bytes);
  text.Find(name, name, name);
  text.Set(name, name, name, name);
  const lumenote::IniText again(text.Bytes());
  if (again.Find(name, name, name) != name) std::abort();
  if (again.Bytes() != text.Bytes()) std::abort();
  return 0;
}

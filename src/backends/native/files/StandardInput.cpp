#include "backends/native/files/StandardInput.h"

#include <array>
#include <cstdio>

#include "base/RuntimeError.h"

namespace lumenote {

std::string ReadStandardInput() {
  std::string bytes;
  std::array<char, 1 << 16> block{};
  while (const std::size_t count = std::fread(block.data(), 1, block.size(), stdin))
    bytes.append(block.data(), count);
  if (std::ferror(stdin)) throw RuntimeError(ErrorNumber::PathAccess, u"Entrée standard illisible");
  return bytes;
}

}  // namespace lumenote

// Making and removing a private folder.
#include "backends/posix/TemporaryFolder.h"

#include <cstdlib>
#include <filesystem>
#include <system_error>

namespace lumenote {
namespace {

std::string MakeIn(std::string folder) {
  folder += "/lumenote-XXXXXX";
  return mkdtemp(folder.data()) ? folder : std::string();
}

}  // namespace

TemporaryFolder::TemporaryFolder() {
  const char* chosen = std::getenv("TMPDIR");
  if (chosen && chosen[0] == '/') path_ = MakeIn(chosen);
  if (path_.empty()) path_ = MakeIn("/tmp");
}

TemporaryFolder::~TemporaryFolder() {
  std::error_code ignored;
  if (!path_.empty()) std::filesystem::remove_all(path_, ignored);
}

}  // namespace lumenote

// Making and removing a private folder.
#include "backends/posix/TemporaryFolder.h"

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <string_view>
#include <sys/file.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

namespace lumenote {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view kPrefix = "lumenote-";
constexpr std::string_view kPlaces = "XXXXXX";
constexpr std::chrono::hours kLeftAlone(7 * 24);

int OpenFolder(const std::string& path) {
  return open(path.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
}

bool IsOwnFolder(const Descriptor& folder) {
  struct stat info = {};
  return fstat(folder.Number(), &info) == 0 && info.st_uid == geteuid();
}

/// Of the folder and what lies directly in it.
fs::file_time_type LastChange(const fs::path& folder) {
  std::error_code error;
  fs::file_time_type last = fs::last_write_time(folder, error);
  for (fs::directory_iterator entry(folder, error), end; !error && entry != end;
       entry.increment(error)) {
    std::error_code vanished;
    const fs::file_time_type time = entry->last_write_time(vanished);
    if (!vanished) last = std::max(last, time);
  }
  return last;
}

void RemoveIfAbandoned(const fs::path& path) {
  const Descriptor folder(OpenFolder(path.string()));
  if (!folder.IsOpen() || !IsOwnFolder(folder)) return;
  if (LastChange(path) + kLeftAlone > fs::file_time_type::clock::now()) return;
  std::error_code ignored;
  if (flock(folder.Number(), LOCK_EX | LOCK_NB) == 0) fs::remove_all(path, ignored);
}

void RemoveAbandonedIn(const std::string& parent) {
  std::error_code error;
  for (fs::directory_iterator entry(parent, error), end; !error && entry != end;
       entry.increment(error)) {
    const std::string name = entry->path().filename().string();
    if (name.starts_with(kPrefix) && name.size() == kPrefix.size() + kPlaces.size())
      RemoveIfAbandoned(entry->path());
  }
}

std::string MakeIn(const std::string& parent) {
  RemoveAbandonedIn(parent);
  std::string folder = parent + "/" + std::string(kPrefix) + std::string(kPlaces);
  return mkdtemp(folder.data()) ? folder : std::string();
}

}  // namespace

TemporaryFolder::TemporaryFolder() {
  const char* chosen = std::getenv("TMPDIR");
  if (chosen && chosen[0] == '/') path_ = MakeIn(chosen);
  if (path_.empty()) path_ = MakeIn("/tmp");
  lock_.emplace(OpenFolder(path_));
  if (lock_->IsOpen()) flock(lock_->Number(), LOCK_SH | LOCK_NB);
}

TemporaryFolder::~TemporaryFolder() {
  std::error_code ignored;
  if (!path_.empty() && !keep_) fs::remove_all(path_, ignored);
}

}  // namespace lumenote

// Creates and removes a private folder.
#include "backends/posix/folders/TemporaryFolder.h"

#include <algorithm>
#include <cstdlib>
#include <ctime>
#include <fcntl.h>
#include <filesystem>
#include <limits>
#include <string_view>
#include <sys/file.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>
#include <utility>

namespace lumenote {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view kPrefix = "lumenote-";
constexpr std::string_view kPlaces = "XXXXXX";
constexpr std::string_view kMark =
    "Temporary folder of Lumenote, removed a week after its last use\n";
constexpr time_t kLeftAlone = 7 * 24 * 3600;  // seconds

bool IsOwn(const Descriptor& file) {
  struct stat info = {};
  return fstat(file.Number(), &info) == 0 && info.st_uid == geteuid();
}

/// Tells our folders from any other folder with such a name.
bool PutMark(const std::string& folder) {
  const Descriptor mark(open((folder + "/" + TemporaryFolder::kMarkName).c_str(),
                             O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC,
                             S_IRUSR | S_IWUSR));
  return mark.IsOpen() && WriteAll(mark, kMark) == 0;
}

/// Not open if there is no mark, or the folder is not ours.
Descriptor MarkIn(const std::string& path) {
  const Descriptor folder(open(path.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
  if (!folder.IsOpen() || !IsOwn(folder)) return Descriptor();
  Descriptor mark(openat(folder.Number(), TemporaryFolder::kMarkName,
                         O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
  std::string bytes(kMark.size() + 1, '\0');
  const bool ours =
      mark.IsOpen() && IsOwn(mark) &&
      read(mark.Number(), bytes.data(), bytes.size()) == static_cast<ssize_t>(kMark.size()) &&
      bytes.starts_with(kMark);
  return ours ? std::move(mark) : Descriptor();
}

time_t LastWrite(const fs::path& path) {
  struct stat info = {};
  return lstat(path.c_str(), &info) == 0 ? info.st_mtim.tv_sec : std::numeric_limits<time_t>::max();
}

/// Last change of the folder or anything in it, at any depth; now if something is inaccessible.
time_t LastChange(const fs::path& folder) {
  std::error_code error;
  time_t last = LastWrite(folder);
  for (fs::recursive_directory_iterator entry(folder, error), end; !error && entry != end;
       entry.increment(error)) {
    last = std::max(last, LastWrite(entry->path()));
  }
  return error ? std::numeric_limits<time_t>::max() : last;
}

void RemoveIfAbandoned(const fs::path& path) {
  const Descriptor mark = MarkIn(path.string());
  if (!mark.IsOpen() || LastChange(path) > time(nullptr) - kLeftAlone) return;
  std::error_code ignored;
  if (flock(mark.Number(), LOCK_EX | LOCK_NB) == 0) fs::remove_all(path, ignored);
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
  if (!mkdtemp(folder.data())) return {};
  if (PutMark(folder)) return folder;
  std::error_code ignored;
  fs::remove_all(folder, ignored);
  return {};
}

}  // namespace

TemporaryFolder::TemporaryFolder() {
  const char* chosen = std::getenv("TMPDIR");
  if (chosen && chosen[0] == '/') path_ = MakeIn(chosen);
  if (path_.empty()) path_ = MakeIn("/tmp");
  lock_.emplace(MarkIn(path_));
  if (lock_->IsOpen()) flock(lock_->Number(), LOCK_SH | LOCK_NB);
}

TemporaryFolder::~TemporaryFolder() {
  std::error_code ignored;
  if (!keep_ && MarkIn(path_).IsOpen()) fs::remove_all(path_, ignored);
}

}  // namespace lumenote

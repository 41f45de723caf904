// Creates, takes over and removes an owner's folder.
#include "backends/posix/state/OwnerFolder.h"

#include <cstdio>
#include <fcntl.h>
#include <filesystem>
#include <string_view>
#include <sys/file.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

#include "base/RuntimeError.h"

namespace lumenote {
namespace {

constexpr std::string_view kMark = "/.lumenote";
constexpr std::string_view kOwned = "owner-";
constexpr std::string_view kUnlocked = "/new-";
constexpr std::string_view kPlaces = "XXXXXX";

std::string MarkIn(const std::string& folder) { return folder + std::string(kMark); }

std::string MakeUnlocked(const std::string& parent) {
  std::string folder = parent + std::string(kUnlocked) + std::string(kPlaces);
  if (!mkdtemp(folder.data())) throw RuntimeError(ErrorNumber::PathAccess);
  return folder;
}

int MakeMark(const std::string& folder) {
  return open(MarkIn(folder).c_str(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, S_IRUSR | S_IWUSR);
}

int OpenMark(const std::string& folder) {
  return open(MarkIn(folder).c_str(), O_RDWR | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK);
}

}  // namespace

// Searches for dead owners go by name, so the folder gets its name only once it is locked.
OwnerFolder::OwnerFolder(const std::string& parent)
    : path_(MakeUnlocked(parent)), mark_(MakeMark(path_)) {
  TakeLock();
  const std::string places = path_.substr(path_.size() - kPlaces.size());
  const std::string owned = parent + "/" + std::string(kOwned) + places;
  if (!mark_.IsOpen() || rename(path_.c_str(), owned.c_str()) != 0) {
    unlink(MarkIn(path_).c_str());
    rmdir(path_.c_str());
    throw RuntimeError(ErrorNumber::PathAccess);
  }
  path_ = owned;
}

bool OwnerFolder::TakeLock() const {
  return mark_.IsOpen() && flock(mark_.Number(), LOCK_EX | LOCK_NB) == 0;
}

bool OwnerFolder::Exists() const {
  struct stat info = {};
  return fstat(mark_.Number(), &info) == 0 && S_ISREG(info.st_mode) && info.st_nlink > 0 &&
         info.st_uid == geteuid();
}

std::vector<std::unique_ptr<OwnerFolder>> OwnerFolder::TakeDead(const std::string& parent) {
  std::vector<std::unique_ptr<OwnerFolder>> dead;
  std::error_code error;
  for (std::filesystem::directory_iterator entry(parent, error), end; !error && entry != end;
       entry.increment(error)) {
    const std::string path = entry->path().string();
    if (!entry->path().filename().string().starts_with(kOwned)) continue;
    std::unique_ptr<OwnerFolder> folder(new OwnerFolder(path, OpenMark(path)));
    // An owner that has ended normally meanwhile has removed the mark that we locked.
    if (folder->TakeLock() && folder->Exists()) dead.push_back(std::move(folder));
  }
  return dead;
}

// Without the lock, leave everything untouched.
OwnerFolder::~OwnerFolder() {
  try {
    if (TakeLock()) RemoveIfEmpty();
  } catch (const std::exception&) {
    // The folder stays until another owner takes it over.
  }
}

void OwnerFolder::RemoveIfEmpty() const {
  const std::filesystem::directory_iterator entries(path_);
  if (std::distance(begin(entries), end(entries)) != 1) return;
  unlink(MarkIn(path_).c_str());
  rmdir(path_.c_str());
}

}  // namespace lumenote

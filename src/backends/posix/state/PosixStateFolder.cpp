// The layout of the state folder.
#include "backends/posix/state/PosixStateFolder.h"

#include <cerrno>
#include <filesystem>
#include <sys/stat.h>
#include <system_error>

#include "backends/posix/files/AtomicFile.h"
#include "backends/posix/folders/UserFolders.h"
#include "base/RuntimeError.h"
#include "base/Strings.h"

namespace lumenote {
namespace {

constexpr const char* kForGood = "/rescue";

/// Creates the folder, private to this user, and its missing parents.
void MakePrivate(const std::string& path) {
  std::error_code ignored;
  std::filesystem::create_directories(std::filesystem::path(path).parent_path(), ignored);
  if (path.empty() || (mkdir(path.c_str(), S_IRWXU) != 0 && errno != EEXIST))
    throw RuntimeError(ErrorNumber::PathAccess);
}

}  // namespace

std::string PosixStateFolder::OfUser() {
  const std::string folder = StateFolderOfUser();
  return folder.empty() ? folder : folder + "/lumenote";
}

std::string PosixStateFolder::Own() {
  const std::lock_guard lock(access_);
  if (!own_ || !own_->Exists()) {
    MakePrivate(path_);
    own_ = std::make_unique<OwnerFolder>(path_);
  }
  return own_->Path();
}

std::unique_ptr<StateCopy> PosixStateFolder::MakeStateCopy() {
  return std::make_unique<StateCopy>([this] { return Own(); }, ++copies_);
}

void PosixStateFolder::ClaimOrphans(const std::function<bool(const OrphanedCopy&)>& rescue) {
  // Copies made by this backend itself have a native path as origin.
  const auto translated = [&](const OrphanedCopy& copy) {
    OrphanedCopy shown = copy;
    if (copy.origin.starts_with(u'/'))
      IgnoringErrors([&] { shown.origin = drives_.ToDrivePath(ToUtf8(copy.origin)); });
    return rescue(shown);
  };
  for (const std::unique_ptr<OwnerFolder>& dead : OwnerFolder::TakeDead(path_))
    StateCopy::PassOrphans(dead->Path(), translated);
}

std::u16string PosixStateFolder::KeepForGood(std::u16string_view name, std::string_view bytes) {
  MakePrivate(path_);
  MakePrivate(path_ + kForGood);
  const std::string path = path_ + kForGood + "/" + ToUtf8(name);
  AtomicFile file(path, S_IRUSR | S_IWUSR);
  file.Write(bytes);
  file.CommitAsNew();
  std::u16string shown = FromUtf8(path);
  IgnoringErrors([&] { shown = drives_.ToDrivePath(path); });
  return shown;
}

}  // namespace lumenote

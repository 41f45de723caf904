// The layout of the state folder.
#include "backends/native/state/NativeStateFolder.h"

#include <filesystem>

#include "backends/native/files/AtomicFile.h"
#include "backends/native/files/Disk.h"
#include "backends/native/folders/UserFolders.h"
#include "base/RuntimeError.h"
#include "base/Strings.h"

namespace lumenote {
namespace {

constexpr const char* kForGood = "/rescue";

}  // namespace

std::string NativeStateFolder::OfUser() { return ComponentStateFolder(); }

std::string NativeStateFolder::Own() {
  const std::lock_guard lock(access_);
  if (!own_ || !own_->Exists()) {
    MakePrivateFolder(path_);
    own_ = std::make_unique<OwnerFolder>(path_);
  }
  return own_->Path();
}

std::unique_ptr<StateCopy> NativeStateFolder::MakeStateCopy() {
  return std::make_unique<StateCopy>([this] { return Own(); }, ++copies_);
}

void NativeStateFolder::ClaimOrphans(const std::function<bool(const OrphanedCopy&)>& rescue) {
  // Copies made by this backend itself have a native path as origin.
  const auto translated = [&](const OrphanedCopy& copy) {
    OrphanedCopy shown = copy;
    if (std::filesystem::path(copy.origin).is_absolute())
      IgnoringErrors([&] { shown.origin = drives_.ToDrivePath(ToUtf8(copy.origin)); });
    return rescue(shown);
  };
  for (const std::unique_ptr<OwnerFolder>& dead : OwnerFolder::TakeDead(path_))
    StateCopy::PassOrphans(dead->Path(), translated);
}

std::u16string NativeStateFolder::KeepForGood(std::u16string_view name, std::string_view bytes) {
  MakePrivateFolder(path_);
  MakePrivateFolder(path_ + kForGood);
  const std::string path = path_ + kForGood + "/" + ToUtf8(name);
  WriteNewFile(path, bytes, Permissions::UserOnly);
  std::u16string shown = FromUtf8(path);
  IgnoringErrors([&] { shown = drives_.ToDrivePath(path); });
  return shown;
}

}  // namespace lumenote

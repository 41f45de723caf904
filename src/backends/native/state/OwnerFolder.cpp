// Creates, takes over and removes an owner's folder.
#include "backends/native/state/OwnerFolder.h"

#include <string_view>

#include "backends/native/files/Disk.h"
#include "base/RuntimeError.h"

namespace lumenote {
namespace {

constexpr std::string_view kOwned = "owner-";

std::string MarkIn(const std::string& folder) { return folder + "/.lumenote"; }

/// The mark gets its name only once it is locked: a search for dead owners goes by that name.
OpenFile MakeMark(const std::string& folder) {
  if (folder.empty()) return OpenFile();
  const std::string unlocked = MarkIn(folder) + ".new";
  OpenFile mark = CreateNew(unlocked);
  const bool made = mark.IsOpen() && TryLock(mark, Lock::Exclusive) == LockResult::Locked &&
                    RenameOver(unlocked, MarkIn(folder)) == 0;
  if (made) return mark;
  mark.Close();
  RemoveFile(unlocked);
  return OpenFile();
}

}  // namespace

OwnerFolder::OwnerFolder(const std::string& parent)
    : path_(MakeUniqueFolder(parent, std::string(kOwned))),
      mark_(MakeMark(path_)),
      locked_(mark_.IsOpen()) {
  if (locked_) return;
  if (!path_.empty()) RemoveEmptyFolder(path_);
  throw RuntimeError(ErrorNumber::PathAccess);
}

OwnerFolder::OwnerFolder(std::string path, OpenFile mark)
    : path_(std::move(path)),
      mark_(std::move(mark)),
      locked_(mark_.IsOpen() && TryLock(mark_, Lock::Exclusive) == LockResult::Locked) {}

std::vector<std::unique_ptr<OwnerFolder>> OwnerFolder::TakeDead(const std::string& parent) {
  std::vector<std::unique_ptr<OwnerFolder>> dead;
  for (const std::string& name : NamesIn(parent)) {
    if (!name.starts_with(kOwned)) continue;
    const std::string path = parent + "/" + name;
    std::unique_ptr<OwnerFolder> folder(new OwnerFolder(path, OpenExisting(MarkIn(path))));
    // An owner that has ended normally meanwhile has removed the mark that we locked.
    if (folder->locked_ && folder->Exists()) dead.push_back(std::move(folder));
  }
  return dead;
}

// Without the lock, leave everything untouched.
OwnerFolder::~OwnerFolder() {
  try {
    if (locked_) RemoveIfEmpty();
  } catch (const std::exception&) {
    // The folder stays until another owner takes it over.
  }
}

void OwnerFolder::RemoveIfEmpty() {
  const auto names = AllNamesIn(path_);
  if (!names || names->size() != 1) return;
  RemoveFile(MarkIn(path_));
  mark_.Close();  // on some systems an open file keeps its folder
  RemoveEmptyFolder(path_);
}

}  // namespace lumenote

// Creates and removes a private folder.
#include "backends/native/folders/TemporaryFolder.h"

#include <algorithm>
#include <cstdint>
#include <ctime>
#include <limits>
#include <string_view>
#include <utility>

#include "backends/native/files/Disk.h"
#include "backends/native/folders/UserFolders.h"
#include "base/RuntimeError.h"

namespace lumenote {
namespace {

constexpr std::string_view kPrefix = "lumenote-";
constexpr std::size_t kPlaces = 6;
constexpr std::string_view kMark =
    "Temporary folder of Lumenote, removed a week after its last use\n";
constexpr std::int64_t kLeftAlone = 7 * 24 * 3600;  // seconds

bool IsRecent(std::int64_t time) { return time > std::time(nullptr) - kLeftAlone; }

std::string MarkPath(const std::string& folder) {
  return folder + "/" + TemporaryFolder::kMarkName;
}

/// Tells our folders from any other folder with such a name.
bool PutMark(const std::string& folder) {
  const OpenFile mark = CreateNew(MarkPath(folder));
  return mark.IsOpen() && WriteAll(mark, kMark) == 0;
}

bool SaysOurs(const std::string& mark) {
  std::string bytes;
  IgnoringErrors([&] { bytes = ReadWholeFile(mark); });
  return bytes == kMark;
}

/// Not open if there is no mark, or the folder is not ours.
OpenFile MarkIn(const std::string& folder) {
  if (folder.empty() || !IsOwnFolder(folder)) return OpenFile();
  OpenFile mark = OpenExisting(MarkPath(folder));
  const bool ours = mark.IsOpen() && IsOwn(mark) && SaysOurs(MarkPath(folder));
  return ours ? std::move(mark) : OpenFile();
}

/// Last change of the folder or anything in it, at any depth; far in the future if a part cannot be
/// read.
std::int64_t LastChangeWithin(const std::string& folder) {
  const auto names = AllNamesIn(folder);
  if (!names) return std::numeric_limits<std::int64_t>::max();
  std::int64_t last = LastChangeOf(folder);
  for (const std::string& name : *names) {
    const std::string path = folder + "/" + name;
    last = std::max(last, IsRealFolder(path) ? LastChangeWithin(path) : LastChangeOf(path));
  }
  return last;
}

/// Opens nothing in a folder that another program may be using: on some systems a file that is
/// looked at cannot be deleted and made anew.
void RemoveIfAbandoned(const std::string& path) {
  if (IsRecent(LastChangeOf(path))) return;
  OpenFile mark = MarkIn(path);
  if (!mark.IsOpen() || TryLock(mark, Lock::Exclusive) != LockResult::Locked) return;
  if (IsRecent(LastChangeWithin(path))) return;
  mark.Close();
  RemoveTree(path);
}

void RemoveAbandonedIn(const std::string& parent) {
  for (const std::string& name : NamesIn(parent))
    if (name.starts_with(kPrefix) && name.size() == kPrefix.size() + kPlaces)
      RemoveIfAbandoned(parent + "/" + name);
}

std::string MakeIn(const std::string& parent) {
  RemoveAbandonedIn(parent);
  std::string folder = MakeUniqueFolder(parent, std::string(kPrefix));
  if (folder.empty() || PutMark(folder)) return folder;
  RemoveTree(folder);
  return {};
}

}  // namespace

TemporaryFolder::TemporaryFolder() {
  for (const std::string& parent : TemporaryParents())
    if (path_.empty()) path_ = MakeIn(parent);
  mark_.emplace(MarkIn(path_));
  if (mark_->IsOpen()) TryLock(*mark_, Lock::Shared);
}

TemporaryFolder::~TemporaryFolder() {
  mark_.reset();  // on some systems an open file keeps its folder
  if (!keep_ && MarkIn(path_).IsOpen()) RemoveTree(path_);
}

}  // namespace lumenote

// Writes copies, and finds those of a dead owner.
#include "backends/posix/state/StateCopy.h"

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <filesystem>
#include <set>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

#include "backends/posix/files/Errors.h"
#include "base/RuntimeError.h"
#include "base/Strings.h"

namespace lumenote {
namespace {

constexpr const char* kContent = ".note";
constexpr const char* kOrigin = ".origin";
constexpr const char* kUnfinished = ".new";

int Create(const std::string& path) {
  return open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC | O_NOFOLLOW,
              S_IRUSR | S_IWUSR);
}

void WriteSmall(const std::string& path, std::string_view bytes) {
  const Descriptor file(Create(path));
  const int error = file.IsOpen() ? WriteAll(file, bytes) : errno;
  if (error != 0) throw AccessError(error, path);
}

void RemoveAll(const std::string& base) {
  for (const char* kind : {kUnfinished, kContent, kOrigin}) unlink((base + kind).c_str());
}

/// The copies in the folder, finished or not, by their file names without extension.
std::set<std::string> BasesIn(const std::string& folder) {
  std::set<std::string> bases;
  std::error_code error;
  for (std::filesystem::directory_iterator entry(folder, error), end; !error && entry != end;
       entry.increment(error)) {
    std::filesystem::path path = entry->path();
    const std::string kind = path.extension().string();
    if (kind == kContent || kind == kOrigin || kind == kUnfinished)
      bases.insert(path.replace_extension().string());
  }
  return bases;
}

/// Empty if it cannot be read.
std::optional<OrphanedCopy> Read(const std::string& base) {
  OrphanedCopy copy;
  IgnoringErrors([&] { copy.origin = FromUtf8(ReadWholeFile(base + kOrigin)); });
  if (!IgnoringErrors([&] { copy.bytes = ReadWholeFile(base + kContent); })) return std::nullopt;
  return copy;
}

}  // namespace

StateCopy::~StateCopy() {
  try {
    if (!leave_) Remove();
  } catch (const std::exception&) {
    // A copy left by mistake is reported at the next start, which is better than losing one.
  }
}

void StateCopy::Begin(std::u16string_view origin) { BeginFor(ToUtf8(origin)); }

void StateCopy::BeginFor(const std::string& origin) {
  Drop();
  const std::string base = folder_() + "/" + std::to_string(number_);
  if (base != base_ || origin != origin_) {
    WriteSmall(base + kOrigin, origin);
    base_ = base;
    origin_ = origin;
  }
  file_.emplace(Create(base_ + kUnfinished));
  if (!file_->IsOpen()) Check(errno);
}

void StateCopy::Append(std::string_view bytes) {
  if (!file_) throw RuntimeError(ErrorNumber::PathAccess);
  Check(WriteAll(*file_, bytes));
}

void StateCopy::Commit() {
  if (!file_) throw RuntimeError(ErrorNumber::PathAccess);
  if (rename((base_ + kUnfinished).c_str(), Path().c_str()) != 0) Check(errno);
  file_.reset();
}

void StateCopy::CommitToDisk() {
  for (const char* kind : {kUnfinished, kOrigin}) Check(SyncToDisk(base_ + kind));
  Commit();
  const std::filesystem::path folder = std::filesystem::path(base_).parent_path();
  Check(SyncToDisk(folder.string()));
  Check(SyncToDisk(folder.parent_path().string()));
}

void StateCopy::Check(int error) {
  if (error == 0) return;
  const std::string path = base_ + kUnfinished;
  Drop();
  throw AccessError(error, path);
}

void StateCopy::Drop() {
  if (file_) unlink((base_ + kUnfinished).c_str());
  file_.reset();
}

void StateCopy::Remove() {
  file_.reset();
  if (base_.empty()) return;
  RemoveAll(base_);
  base_.clear();
}

void StateCopy::PassOrphans(const std::string& folder,
                            const std::function<bool(const OrphanedCopy&)>& rescue) {
  for (const std::string& base : BasesIn(folder)) {
    std::error_code ignored;
    const bool finished = std::filesystem::exists(base + kContent, ignored);
    const std::optional<OrphanedCopy> copy = finished ? Read(base) : std::nullopt;
    if (!finished || (copy && rescue(*copy))) RemoveAll(base);
  }
}

}  // namespace lumenote

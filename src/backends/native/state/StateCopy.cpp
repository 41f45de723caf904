// Writes copies, and finds those of a dead owner.
#include "backends/native/state/StateCopy.h"

#include <set>

#include "backends/native/files/Disk.h"
#include "backends/native/files/Errors.h"
#include "base/RuntimeError.h"
#include "base/Strings.h"

namespace lumenote {
namespace {

constexpr const char* kContent = ".note";
constexpr const char* kOrigin = ".origin";
constexpr const char* kUnfinished = ".new";

void WriteSmall(const std::string& path, std::string_view bytes) {
  const OpenFile file = Recreate(path);
  const int error = file.IsOpen() ? WriteAll(file, bytes) : LastError();
  if (error != 0) throw AccessError(error, path);
}

void RemoveAll(const std::string& base) {
  for (const char* kind : {kUnfinished, kContent, kOrigin}) RemoveFile(base + kind);
}

/// The copies in the folder, finished or not, by their paths without extension.
std::set<std::string> BasesIn(const std::string& folder) {
  std::set<std::string> bases;
  for (const std::string& name : NamesIn(folder)) {
    for (const std::string kind : {kContent, kOrigin, kUnfinished})
      if (name.ends_with(kind))
        bases.insert(folder + "/" + name.substr(0, name.size() - kind.size()));
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
  file_.emplace(Recreate(base_ + kUnfinished));
  if (!file_->IsOpen()) Check(LastError());
}

void StateCopy::Append(std::string_view bytes) {
  if (!file_) throw RuntimeError(ErrorNumber::PathAccess);
  Check(WriteAll(*file_, bytes));
}

void StateCopy::Commit() {
  if (!file_) throw RuntimeError(ErrorNumber::PathAccess);
  Check(RenameOver(base_ + kUnfinished, Path()));
  file_.reset();
}

void StateCopy::CommitToDisk() {
  for (const char* kind : {kUnfinished, kOrigin}) Check(SyncToDisk(base_ + kind));
  Commit();
  Check(SyncToDisk(ParentOf(base_)));
  Check(SyncToDisk(ParentOf(ParentOf(base_))));
}

void StateCopy::Check(int error) {
  if (error == 0) return;
  const std::string path = base_ + kUnfinished;
  Drop();
  throw AccessError(error, path);
}

void StateCopy::Drop() {
  if (file_) RemoveFile(base_ + kUnfinished);
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
    const bool finished = StatusOf(base + kContent).has_value();
    const std::optional<OrphanedCopy> copy = finished ? Read(base) : std::nullopt;
    if (!finished || (copy && rescue(*copy))) RemoveAll(base);
  }
}

}  // namespace lumenote

// The folders of a sandbox, and what scripts do to its files.
#include "pilot/sandbox/FolderSandbox.h"

#include <algorithm>

#include "backends/native/files/Disk.h"
#include "backends/native/files/Errors.h"
#include "backends/native/files/FileActs.h"
#include "base/Characters.h"
#include "base/Strings.h"

namespace lumenote {
namespace {

constexpr std::u16string_view kRegistry = u"Machine";

/// Creates the drive with its folders and returns its native path.
std::string MakeDrive(const std::string& root) {
  std::string drive = root + "/c";
  for (const char* folder : {"/Temp", "/Documents", "/Program Files", "/Lumenote"})
    if (root.empty() || MakeFolders(drive + folder) != 0)
      throw RuntimeError(ErrorNumber::PathAccess);
  return drive;
}

void Check(int error, const std::string& path) {
  if (error != 0) throw RemovalError(error, path);
}

}  // namespace

FolderSandbox::FolderSandbox() : FolderSandbox(std::make_unique<TemporaryFolder>()) {}

FolderSandbox::FolderSandbox(std::unique_ptr<TemporaryFolder> own) : FolderSandbox(own->Path()) {
  own_ = std::move(own);
}

FolderSandbox::FolderSandbox(const std::string& root)
    : drives_(MakeDrive(AbsolutePath(root))),
      state_(root + "/state", drives_),
      files_(drives_, &state_),
      folders_(u"C:\\Documents", u"C:\\Temp\\"),
      settings_(root + "/settings.ini"),
      registry_({root + "/registry.ini"}),
      registryFile_(root + "/registry.ini"),
      programs_(files_) {}

std::string FolderSandbox::FileAt(std::u16string_view path) const {
  if (!files_.Exists(path)) throw RuntimeError(ErrorNumber::FileNotFound);
  return drives_.ToNative(path);
}

void FolderSandbox::WriteRegistry(std::u16string_view key, std::u16string_view name,
                                  std::u16string_view value) {
  registryFile_.Write(kRegistry, Lower(key), name, value);
}

void FolderSandbox::MakeParents(std::u16string_view path) {
  if (MakeFolders(ParentOf(drives_.ToNative(path))) != 0)
    throw RuntimeError(ErrorNumber::PathAccess);
}

std::vector<std::u16string> FolderSandbox::List(std::u16string_view folder) const {
  const std::string native = drives_.ToNative(folder);
  if (!IsOwnFolder(native)) throw RuntimeError(ErrorNumber::PathNotFound);
  std::vector<std::u16string> names;
  for (const std::string& name : NamesIn(native)) names.push_back(FromUtf8(name));
  std::sort(names.begin(), names.end());
  return names;
}

void FolderSandbox::Remove(std::u16string_view path) {
  const std::string native = drives_.ToNative(path);
  Check(RemoveTree(native), native);
}

void FolderSandbox::ReadOnly(std::u16string_view path, bool on) {
  const std::string file = FileAt(path);
  Check(SetReadOnly(file, on), file);
}

void FolderSandbox::Link(std::u16string_view name, std::u16string_view path, LinkKind kind) {
  const std::string file = FileAt(path);
  const std::string link = drives_.ToNative(name);
  const auto make = kind == LinkKind::Hard ? MakeHardLink : MakeSymbolicLink;
  Check(make(link, file), link);
}

void FolderSandbox::Age(std::u16string_view path, std::int64_t seconds) {
  const std::string file = FileAt(path);
  Check(ShiftTime(file, seconds), file);
}

}  // namespace lumenote

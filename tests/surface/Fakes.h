// A disk that lives in memory.
#pragma once
#include <map>
#include <string>

#include "backends/headless/MemoryClipboard.h"
#include "base/RuntimeError.h"
#include "platform/Files.h"

namespace lumenote {

/// Flat: a path is only a key. `broken` makes every write fail.
class MemoryFiles final : public Files {
 public:
  std::map<std::u16string, std::string, std::less<>> files;
  bool broken = false;

  bool Exists(std::u16string_view path) const override { return files.contains(path); }
  bool IsReadOnly(std::u16string_view) const override { return false; }
  FileTime ModificationTime(std::u16string_view) const override { return 0; }
  std::uint64_t Size(std::u16string_view path) const override { return ReadAll(path).size(); }
  std::string ReadAll(std::u16string_view path) const override {
    const auto found = files.find(path);
    if (found == files.end()) throw RuntimeError(ErrorNumber::FileNotFound);
    return found->second;
  }
  bool SameFile(std::u16string_view one, std::u16string_view other) const override {
    return one == other;
  }
  std::shared_ptr<void> LockFolder(std::u16string_view) const override { return nullptr; }
  void Write(std::u16string_view path, std::string_view bytes) override {
    if (broken) throw RuntimeError(ErrorNumber::PathAccess);
    files[std::u16string(path)] = bytes;
  }
  void WriteNew(std::u16string_view path, std::string_view bytes, Permissions) override {
    Write(path, bytes);
  }
  void AppendLines(std::u16string_view path, std::string_view lines) override {
    if (broken) throw RuntimeError(ErrorNumber::PathAccess);
    files[std::u16string(path)] += lines;
  }
  void Delete(std::u16string_view path, bool) override { files.erase(std::u16string(path)); }
  void Copy(std::u16string_view from, std::u16string_view to) override { Write(to, ReadAll(from)); }
  void Move(std::u16string_view from, std::u16string_view to) override {
    Copy(from, to);
    Delete(from, true);
  }
};

}  // namespace lumenote

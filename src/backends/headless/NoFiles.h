// A machine without files.
#pragma once
#include "base/RuntimeError.h"
#include "platform/Files.h"

namespace lumenote {

/// No path exists and none can be created: PathNotFound (76).
class NoFiles : public Files {
 public:
  bool Exists(std::u16string_view) const override { return false; }
  bool IsReadOnly(std::u16string_view) const override { Refuse(); }
  FileTime ModificationTime(std::u16string_view) const override { Refuse(); }
  std::uint64_t Size(std::u16string_view) const override { Refuse(); }
  std::string ReadAll(std::u16string_view) const override { Refuse(); }
  bool SameFile(std::u16string_view, std::u16string_view) const override { return false; }
  std::shared_ptr<void> LockFolder(std::u16string_view) const override { return {}; }
  void Write(std::u16string_view, std::string_view) override { Refuse(); }
  void WriteNew(std::u16string_view, std::string_view, Permissions) override { Refuse(); }
  void AppendLines(std::u16string_view, std::string_view) override { Refuse(); }
  void Delete(std::u16string_view, bool) override { Refuse(); }
  void Copy(std::u16string_view, std::u16string_view) override { Refuse(); }
  void Move(std::u16string_view, std::u16string_view) override { Refuse(); }

 private:
  [[noreturn]] static void Refuse() { throw RuntimeError(ErrorNumber::PathNotFound); }
};

}  // namespace lumenote

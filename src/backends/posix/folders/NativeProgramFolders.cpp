#include "backends/native/folders/NativeProgramFolders.h"

#include <dlfcn.h>
#include <filesystem>
#include <system_error>

#include "base/RuntimeError.h"

namespace lumenote {
namespace {

/// Its address identifies the file that the component was loaded from.
const char kInside = 0;

std::string OwnFile() {
  Dl_info info = {};
  if (dladdr(&kInside, &info) == 0 || !info.dli_fname) return {};
  std::error_code error;
  const auto file = std::filesystem::canonical(info.dli_fname, error);
  return error ? std::string() : file.string();
}

}  // namespace

std::u16string NativeProgramFolders::Programs() const { return u"C:\\Program Files"; }

std::u16string NativeProgramFolders::Component() const {
  std::u16string folder;
  IgnoringErrors([&] {
    folder = drives_.ToDrivePath(std::filesystem::path(OwnFile()).parent_path().string());
  });
  return folder;
}

}  // namespace lumenote

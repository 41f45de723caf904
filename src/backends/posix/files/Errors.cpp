// Maps system errors to run-time errors.
#include "backends/native/files/Errors.h"

#include <cerrno>
#include <filesystem>
#include <system_error>

namespace lumenote {
namespace {

ErrorNumber MissingAt(const std::string& path) {
  std::error_code ignored;
  const std::filesystem::path folder = std::filesystem::path(path).parent_path();
  return std::filesystem::is_directory(folder, ignored) ? ErrorNumber::FileNotFound
                                                        : ErrorNumber::PathNotFound;
}

ErrorNumber NumberOf(int error, const std::string& path, ErrorNumber refusal) {
  switch (error) {
    case ENOENT:
      return MissingAt(path);
    case ENOTDIR:
      return ErrorNumber::PathNotFound;
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
      return ErrorNumber::DiskFull;
    default:
      return IsRefusal(error) ? refusal : ErrorNumber::PathAccess;
  }
}

}  // namespace

bool IsRefusal(int error) {
  return error == EACCES || error == EPERM || error == EROFS || error == EBUSY;
}

RuntimeError AccessError(int error, const std::string& path) {
  return RuntimeError(NumberOf(error, path, ErrorNumber::PathAccess));
}

RuntimeError RemovalError(int error, const std::string& path) {
  return RuntimeError(NumberOf(error, path, ErrorNumber::PermissionDenied));
}

}  // namespace lumenote

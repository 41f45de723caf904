// Maps system errors to run-time errors.
#include "backends/native/files/Errors.h"

#include "backends/native/files/Disk.h"
#include "backends/win32/system/System.h"

namespace lumenote {
namespace {

constexpr int kQuotaExceeded = 1295;  // lacks a name in some headers

ErrorNumber MissingAt(const std::string& path) {
  return IsOwnFolder(ParentOf(path)) ? ErrorNumber::FileNotFound : ErrorNumber::PathNotFound;
}

ErrorNumber NumberOf(int error, const std::string& path, ErrorNumber refusal) {
  switch (error) {
    case ERROR_FILE_NOT_FOUND:
    case ERROR_PATH_NOT_FOUND:
      return MissingAt(path);
    case ERROR_INVALID_NAME:
    case ERROR_BAD_PATHNAME:
    case ERROR_DIRECTORY:
    case ERROR_INVALID_DRIVE:
    case ERROR_NOT_READY:
    case ERROR_BAD_NETPATH:
    case ERROR_BAD_NET_NAME:
      return ErrorNumber::PathNotFound;
    case ERROR_DISK_FULL:
    case ERROR_HANDLE_DISK_FULL:
    case ERROR_FILE_TOO_LARGE:
    case kQuotaExceeded:
      return ErrorNumber::DiskFull;
    default:
      return IsRefusal(error) ? refusal : ErrorNumber::PathAccess;
  }
}

}  // namespace

bool IsRefusal(int error) {
  return error == ERROR_ACCESS_DENIED || error == ERROR_WRITE_PROTECT ||
         error == ERROR_SHARING_VIOLATION || error == ERROR_LOCK_VIOLATION ||
         error == ERROR_USER_MAPPED_FILE;
}

RuntimeError AccessError(int error, const std::string& path) {
  return RuntimeError(NumberOf(error, path, ErrorNumber::PathAccess));
}

RuntimeError RemovalError(int error, const std::string& path) {
  return RuntimeError(NumberOf(error, path, ErrorNumber::PermissionDenied));
}

}  // namespace lumenote

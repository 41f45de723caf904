#include "backends/win32/files/WideNames.h"

#include <algorithm>

#include "backends/win32/system/System.h"
#include "base/Strings.h"

namespace lumenote {
namespace {

constexpr std::wstring_view kLong = L"\\\\?\\";
constexpr std::wstring_view kLongNetwork = L"\\\\?\\UNC\\";
constexpr std::wstring_view kNetwork = L"\\\\";

/// Absolute and normalised; the same path on failure.
std::wstring FullPath(const std::wstring& path) {
  std::wstring full(GetFullPathNameW(path.c_str(), 0, nullptr, nullptr), L'\0');
  const auto size = static_cast<DWORD>(full.size());
  full.resize(std::min(GetFullPathNameW(path.c_str(), size, full.data(), nullptr), size));
  return full.empty() ? path : full;
}

}  // namespace

std::wstring ToWide(std::u16string_view text) { return {text.begin(), text.end()}; }

std::u16string FromWide(std::wstring_view text) { return {text.begin(), text.end()}; }

// Calls refuse a file's path of 260 units, and a folder's of 248, unless it begins with a sign that
// means: take it as it is.
std::wstring SystemPath(const std::string& native) {
  constexpr std::size_t kShort = 240;
  std::wstring path = ToWide(FromUtf8(native));
  std::replace(path.begin(), path.end(), L'/', L'\\');
  if (path.size() < kShort || path.starts_with(kLong)) return path;
  path = FullPath(path);
  if (!path.starts_with(kNetwork)) return path.insert(0, kLong);
  return path.replace(0, kNetwork.size(), kLongNetwork);
}

std::string NativePath(std::wstring_view path) {
  std::wstring plain(path);
  if (path.starts_with(kLongNetwork))
    plain.replace(0, kLongNetwork.size(), kNetwork);
  else if (path.starts_with(kLong))
    plain.erase(0, kLong.size());
  std::replace(plain.begin(), plain.end(), L'\\', L'/');
  return ToUtf8(FromWide(plain));
}

}  // namespace lumenote

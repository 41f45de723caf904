// Maps drive-letter paths to native paths and back.
#include "backends/posix/folders/DrivePaths.h"

#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <filesystem>
#include <system_error>
#include <vector>

#include "backends/posix/folders/UserFolders.h"
#include "base/Characters.h"
#include "base/RuntimeError.h"
#include "base/Strings.h"

namespace lumenote {
namespace {

namespace fs = std::filesystem;

constexpr std::u16string_view kSeparators = u"\\/";
constexpr std::size_t kNone = std::u16string_view::npos;

[[noreturn]] void FailNotFound() { throw RuntimeError(ErrorNumber::PathNotFound); }

bool HasLoneSurrogate(std::u16string_view text) {
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (IsPairAt(text, i)) {
      ++i;
    } else if (IsSurrogate(text[i])) {
      return true;
    }
  }
  return false;
}

/// The components between separators, without empty and "." ones, with ".." resolved.
std::vector<std::u16string_view> Components(std::u16string_view path) {
  std::vector<std::u16string_view> components;
  while (!path.empty()) {
    const std::size_t end = std::min(path.find_first_of(kSeparators), path.size());
    const std::u16string_view component = path.substr(0, end);
    path.remove_prefix(std::min(end + 1, path.size()));
    if (component == u"..") {
      if (!components.empty()) components.pop_back();
    } else if (!component.empty() && component != u".") {
      components.push_back(component);
    }
  }
  return components;
}

/// Absolute, without "." and a trailing slash, so that the root folder is empty. Symbolic links are
/// resolved only for a "..".
std::string Cleaned(std::string_view native) {
  std::error_code error;
  fs::path path = fs::absolute(native, error);
  const bool climbs = std::find(path.begin(), path.end(), "..") != path.end();
  if (climbs) path = fs::weakly_canonical(path, error);
  if (error) FailNotFound();
  std::string text = path.lexically_normal().string();
  if (text.ends_with('/')) text.pop_back();
  return text;
}

bool IsInside(std::string_view path, std::string_view folder) {
  return path.starts_with(folder) && (path.size() == folder.size() || path[folder.size()] == '/');
}

/// `below`, a native path relative to a drive's root, as the rest of a drive path.
std::u16string Backslashed(std::string_view below) {
  std::u16string text = FromUtf8(below);
  std::replace(text.begin(), text.end(), u'/', u'\\');
  return text.empty() ? u"\\" : text;
}

}  // namespace

DrivePaths DrivePaths::OfUser() {
  const char* chosen = std::getenv("LUMENOTE_DRIVE_C");
  std::string driveC = chosen ? chosen : "";
  if (driveC.empty() && !DataFolder().empty()) driveC = DataFolder() + "/lumenote/drive_c";
  std::error_code ignored;
  if (!driveC.empty()) fs::create_directories(driveC, ignored);
  return DrivePaths(driveC, true);
}

DrivePaths::DrivePaths(std::string_view driveC) : DrivePaths(driveC, false) {}

DrivePaths::DrivePaths(std::string_view driveC, bool hasRootDrive) : hasRootDrive_(hasRootDrive) {
  if (!driveC.empty()) driveC_ = Cleaned(driveC);
}

const std::string& DrivePaths::RootOf(char16_t letter) const {
  static const std::string kRoot;
  if (ToUpper(letter) == u'C' && driveC_) return *driveC_;
  if (ToUpper(letter) == u'Z' && hasRootDrive_) return kRoot;
  FailNotFound();
}

std::string DrivePaths::ToNative(std::u16string_view drivePath) const {
  const bool wellFormed = drivePath.size() >= 2 && drivePath[1] == u':' &&
                          (drivePath.size() == 2 || kSeparators.find(drivePath[2]) != kNone) &&
                          drivePath.find(u'\0') == kNone && !HasLoneSurrogate(drivePath);
  if (!wellFormed) FailNotFound();
  std::string native = RootOf(drivePath[0]);
  for (const std::u16string_view component : Components(drivePath.substr(2))) {
    native.append("/").append(ToUtf8(component));
  }
  const bool isFolder = kSeparators.find(drivePath.back()) != kNone;
  return isFolder || drivePath.size() == 2 ? native + "/" : native;
}

std::u16string DrivePaths::ToDrivePath(std::string_view native) const {
  constexpr std::string_view kUnspeakable("\\\0", 2);
  const bool speakable = !native.empty() && native.find_first_of(kUnspeakable) == native.npos;
  if (!speakable) FailNotFound();
  const std::string path = Cleaned(native);
  if (!IsUtf8(path)) FailNotFound();
  if (driveC_ && IsInside(path, *driveC_)) {
    return u"C:" + Backslashed(std::string_view(path).substr(driveC_->size()));
  }
  if (!hasRootDrive_) FailNotFound();
  return u"Z:" + Backslashed(path);
}

}  // namespace lumenote

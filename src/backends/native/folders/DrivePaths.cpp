// What all systems do alike: components, and the folder that is drive C:.
#include "backends/native/folders/DrivePaths.h"

#include <algorithm>
#include <cstddef>
#include <vector>

#include "base/Characters.h"
#include "base/RuntimeError.h"
#include "base/Strings.h"

namespace lumenote {
namespace {

constexpr std::u16string_view kSeparators = u"\\/";
constexpr std::size_t kNone = std::u16string_view::npos;

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

bool IsInside(std::string_view path, std::string_view folder) {
  return path.starts_with(folder) && (path.size() == folder.size() || path[folder.size()] == '/');
}

}  // namespace

DrivePaths::DrivePaths(std::string_view driveC, bool isOfUser) : isOfUser_(isOfUser) {
  if (!driveC.empty()) driveC_ = Cleaned(driveC);
}

bool DrivePaths::IsDriveC(char16_t letter) const { return driveC_ && ToUpper(letter) == u'C'; }

bool DrivePaths::HasDriveLetter(std::u16string_view path) {
  return path.size() >= 2 && path[1] == u':' &&
         (path.size() == 2 || kSeparators.find(path[2]) != kNone);
}

std::string DrivePaths::ToNative(std::u16string_view drivePath) const {
  if (drivePath.find(u'\0') != kNone || HasLoneSurrogate(drivePath))
    throw RuntimeError(ErrorNumber::PathNotFound);
  auto [native, below] = SplitRoot(drivePath);
  for (const std::u16string_view component : Components(below)) {
    native.append("/").append(ToUtf8(component));
  }
  const bool isFolder = below.empty() || kSeparators.find(below.back()) != kNone;
  return isFolder ? native + "/" : native;
}

std::u16string DrivePaths::ToDrivePath(std::string_view native) const {
  constexpr std::string_view kUnspeakable("\\\0", 2);
  if (native.empty()) throw RuntimeError(ErrorNumber::PathNotFound);
  const std::string path = Cleaned(native);
  const bool onDriveC = driveC_ && IsInside(path, *driveC_);
  const bool speakable = IsUtf8(path) && path.find_first_of(kUnspeakable) == path.npos;
  if (!speakable || (!onDriveC && !isOfUser_)) throw RuntimeError(ErrorNumber::PathNotFound);
  std::u16string text(onDriveC ? u"C:" : kOtherDrive);
  text += FromUtf8(onDriveC ? path.substr(driveC_->size()) : path);
  std::replace(text.begin(), text.end(), u'/', u'\\');
  return text.size() == 2 ? text + u'\\' : text;
}

}  // namespace lumenote

// Drive-letter paths taken apart.
#include "platform/Paths.h"

#include <algorithm>
#include <cstddef>

#include "base/Strings.h"

namespace lumenote {

bool IsDrivePath(std::u16string_view text) {
  constexpr std::size_t kLongestNote = 7;
  return text.size() > kLongestNote && text.substr(1, 2) == u":\\";
}

std::u16string ParentFolder(std::u16string_view path) {
  constexpr std::size_t kRootLength = 3;
  const std::size_t separator = path.rfind(u'\\');
  if (separator == std::u16string_view::npos) return {};
  const bool inRoot = separator + 1 == kRootLength && path[1] == u':';
  return std::u16string(path.substr(0, inRoot ? kRootLength : separator));
}

std::u16string FileName(std::u16string_view path) {
  return std::u16string(path.substr(path.rfind(u'\\') + 1));
}

std::u16string BaseName(std::u16string_view path) {
  std::u16string name = FileName(path);
  name.erase(std::min(name.rfind(u'.'), name.size()));
  return name;
}

std::u16string FoldBackslashes(std::u16string_view path) {
  return ReplaceEvery(path, u"\\\\", u"\\");
}

std::u16string ChmExts(std::u16string_view path, std::u16string_view extension) {
  if (path.size() < 3) return {};
  return std::u16string(path.substr(0, path.size() - 3)).append(extension);
}

}  // namespace lumenote

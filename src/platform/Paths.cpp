// Taking drive-letter paths apart.
#include "platform/Paths.h"

#include <algorithm>
#include <cstddef>

#include "base/Characters.h"
#include "base/Strings.h"
#include "platform/Files.h"

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

std::vector<std::u16string> EnTouteCasse(const Files& files, std::u16string_view path) {
  std::vector<std::u16string> spellings{std::u16string(path)};
  for (std::size_t place = path.size() - std::min<std::size_t>(path.size(), 3); place < path.size();
       ++place) {
    for (std::size_t known = spellings.size(); known-- > 0;) {
      std::u16string other = spellings[known];
      const char16_t c = other[place];
      other[place] = ToUpper(c) == c ? ToLower(c) : ToUpper(c);
      if (other[place] != c) spellings.push_back(std::move(other));
    }
  }
  std::vector<std::u16string> found;
  for (std::u16string& one : spellings) {
    const auto isThis = [&](const std::u16string& other) { return files.SameFile(one, other); };
    if (files.Exists(one) && std::none_of(found.begin(), found.end(), isThis))
      found.push_back(std::move(one));
  }
  return found;
}

}  // namespace lumenote

#include "backends/win32/clipboard/CopiedFiles.h"

#include "backends/win32/clipboard/SharedImages.h"
#include "backends/win32/files/Handles.h"
#include "backends/win32/files/WideNames.h"
#include "surface/editing/PastedPictures.h"

// After the system's own header.
#include <shellapi.h>

namespace lumenote {
namespace {

/// From the current place on; what cannot be read is left out.
std::string Read(const OpenFile& file, std::uint64_t size) {
  std::string bytes(size, '\0');
  DWORD read = 0;
  ReadFile(HandleOf(file), bytes.data(), static_cast<DWORD>(size), &read, nullptr);
  bytes.resize(read);
  return bytes;
}

/// Adds a file that is an image, or that it is too large; false if it is none. The head of others
/// will do.
bool AddImage(const std::wstring& path, std::uint64_t& room, ClipboardContent& content) {
  constexpr std::uint64_t kHead = 16;
  const OpenFile file = OpenToRead(NativePath(path));
  const std::uint64_t size = file.IsOpen() ? SizeOf(file).value_or(0) : 0;
  const std::string head = Read(file, std::min(size, kHead));
  const bool kept = IsPicture(head);
  std::string image;
  if (size <= kMostImageBytes) image = head + Read(file, size - head.size());
  if (!kept) image = PngOf(image);
  const std::uint64_t wanted = kept ? size : image.size();
  if (wanted == 0) return false;
  content.imagesTooLarge |= wanted > room;
  if (content.imagesTooLarge) return true;
  room -= wanted;
  content.images.push_back(std::move(image));
  return true;
}

}  // namespace

std::vector<std::wstring> PathsIn(HGLOBAL files) {
  constexpr UINT kAll = 0xFFFFFFFF;
  const auto drop = static_cast<HDROP>(files);
  std::vector<std::wstring> paths(drop ? DragQueryFileW(drop, kAll, nullptr, 0) : 0);
  for (UINT i = 0; i < paths.size(); ++i) {
    paths[i].resize(DragQueryFileW(drop, i, nullptr, 0));
    DragQueryFileW(drop, i, paths[i].data(), static_cast<UINT>(paths[i].size() + 1));
  }
  return paths;
}

std::u16string LinesOf(const std::vector<std::wstring>& paths) {
  std::u16string lines;
  for (const std::wstring& path : paths) lines += (lines.empty() ? u"" : u"\r\n") + FromWide(path);
  return lines;
}

ClipboardContent ImagesInFiles(const std::vector<std::wstring>& paths) {
  ClipboardContent content;
  std::uint64_t room = kMostImageBytes;
  for (const std::wstring& path : paths)
    if (!AddImage(path, room, content)) return {};
  if (content.imagesTooLarge) content.images.clear();
  return content;
}

}  // namespace lumenote

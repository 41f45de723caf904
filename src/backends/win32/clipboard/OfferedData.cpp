#include "backends/win32/clipboard/OfferedData.h"

#include <algorithm>

#include "backends/win32/clipboard/CopiedFiles.h"
#include "backends/win32/clipboard/HtmlFormat.h"
#include "backends/win32/clipboard/SharedImages.h"
#include "backends/win32/system/SharedMemory.h"
#include "base/Strings.h"
#include "surface/editing/PastedPictures.h"

namespace lumenote {
namespace {

bool Offers(const OfferedData& data, UINT format) {
  const std::vector<UINT> formats = data.Formats();
  return std::ranges::find(formats, format) != formats.end();
}

/// Empty if the format is not offered.
template <class Text>
std::optional<Text> Taken(const OfferedData& data, UINT format) {
  return Offers(data, format) ? TextIn<Text>(data.In(format).get()) : std::nullopt;
}

ClipboardContent TextsOf(const OfferedData& data) {
  ClipboardContent content;
  if (const auto text = Taken<std::u16string>(data, CF_UNICODETEXT)) content.text = WithCrLf(*text);
  content.rtf = Taken<std::string>(data, RtfFormat());
  if (content.rtf && content.rtf->empty()) content.rtf.reset();
  if (const auto html = Taken<std::string>(data, HtmlFormat()))
    content.html = WithoutHtmlHeader(*html);
  return content;
}

}  // namespace

UINT RtfFormat() {
  static const UINT format = RegisterClipboardFormatW(L"Rich Text Format");
  return format;
}

ClipboardContent ReadOffered(const OfferedData& data) {
  ClipboardContent content = TextsOf(data);
  if (Offers(data, CF_HDROP)) {
    const OfferedMemory files = data.In(CF_HDROP);
    const std::vector<std::wstring> paths = PathsIn(files.get());
    ClipboardContent images = ImagesInFiles(paths);
    const std::u16string names = content.text.value_or(LinesOf(paths));
    images.imageNames = names;
    if (images.imagesTooLarge || !images.images.empty()) return images;
    if (!names.empty()) content.text = names;
  }
  if (WantsImages(content)) content.images = ReadImages(data);
  return content;
}

std::vector<UINT> ReadableFormats() {
  std::vector<UINT> formats = {CF_UNICODETEXT, RtfFormat(), HtmlFormat(), CF_HDROP};
  for (const UINT format : ImageFormats()) formats.push_back(format);
  return formats;
}

}  // namespace lumenote

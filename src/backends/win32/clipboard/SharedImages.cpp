#include "backends/win32/clipboard/SharedImages.h"

#include <algorithm>

#include "backends/win32/system/SharedMemory.h"
#include "backends/win32/toolkit/drawing/PictureLibrary.h"
#include "document/pictures/BitmapFile.h"
#include "document/pictures/ImageSize.h"
#include "surface/editing/PastedPictures.h"

namespace lumenote {
namespace {

bool IsBitmapFormat(UINT format) { return format == CF_DIB || format == CF_DIBV5; }

bool IsImageFormat(UINT format) {
  return std::ranges::find(ImageFormats(), format) != ImageFormats().end();
}

std::string ImageFrom(UINT format, const std::string& bytes) {
  if (!IsBitmapFormat(format)) return IsPicture(bytes) ? bytes : std::string();
  const std::string file = BitmapFile(std::string_view(bytes));
  return IsDecodable(file) ? PngOf(file) : std::string();
}

/// Without the file's header, on white.
std::string BitmapOf(const std::string& file) {
  constexpr std::size_t kFileHeader = 14;
  const PictureLibrary library;
  const auto image = IsDecodable(file) ? library.Decode(file) : nullptr;
  if (!image) return {};
  TurnUpright(*image, OrientationOf(file));
  const auto width = static_cast<INT>(image->GetWidth());
  const auto height = static_cast<INT>(image->GetHeight());
  Gdiplus::Bitmap flat(width, height, PixelFormat24bppRGB);
  flat.SetResolution(image->GetHorizontalResolution(), image->GetVerticalResolution());
  Gdiplus::Graphics canvas(&flat);
  canvas.Clear(Gdiplus::Color(255, 255, 255));
  canvas.DrawImage(image.get(), 0, 0, width, height);
  const std::string bitmap = Encoded(flat, kBitmapWriter);
  return bitmap.size() > kFileHeader ? bitmap.substr(kFileHeader) : std::string();
}

}  // namespace

const std::array<UINT, 6>& ImageFormats() {
  static const std::array<UINT, 6> formats = {RegisterClipboardFormatW(L"PNG"),
                                              RegisterClipboardFormatW(L"JFIF"),
                                              RegisterClipboardFormatW(L"image/png"),
                                              RegisterClipboardFormatW(L"image/jpeg"),
                                              CF_DIB,
                                              CF_DIBV5};
  return formats;
}

std::vector<std::string> ReadImages(const OfferedData& data) {
  for (const UINT format : data.Formats()) {
    if (!IsImageFormat(format)) continue;
    const OfferedMemory memory = data.In(format);
    if (std::string image = ImageFrom(format, BytesIn(memory.get())); !image.empty())
      return {std::move(image)};
  }
  return {};
}

std::string PngOf(const std::string& file) {
  const PictureLibrary library;
  const auto image = library.Decode(file);
  return image ? Encoded(*image, kPngWriter) : std::string();
}

std::vector<ImageForm> FormsOf(const std::string& file) {
  if (!IsPicture(file)) return {};
  const bool png = TypeOfImage(file) == PictureType::Png;
  std::vector<ImageForm> forms = {{ImageFormats()[png ? 0 : 1], file}};
  if (std::string bitmap = BitmapOf(file); !bitmap.empty())
    forms.push_back({CF_DIB, std::move(bitmap)});
  return forms;
}

}  // namespace lumenote

#include "backends/win32/toolkit/drawing/PictureLibrary.h"

#include <cstring>

#include "document/pictures/ImageSize.h"

namespace lumenote {
namespace {

/// A stream over a copy of the bytes, which the caller releases; null if there is no memory.
IStream* StreamOf(const std::string& bytes) {
  const HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, bytes.size());
  if (!memory) return nullptr;
  std::memcpy(GlobalLock(memory), bytes.data(), bytes.size());
  GlobalUnlock(memory);
  IStream* stream = nullptr;
  if (SUCCEEDED(CreateStreamOnHGlobal(memory, TRUE, &stream))) return stream;
  GlobalFree(memory);
  return nullptr;
}

}  // namespace

// The image holds the stream as long as it needs it.
std::unique_ptr<Gdiplus::Bitmap> PictureLibrary::Decode(const std::string& file) const {
  IStream* const stream = file.empty() ? nullptr : StreamOf(file);
  if (!stream) return nullptr;
  auto image = std::make_unique<Gdiplus::Bitmap>(stream);
  stream->Release();
  const bool sound = image->GetLastStatus() == Gdiplus::Ok && image->GetWidth() > 0 &&
                     image->GetHeight() > 0 &&
                     1.0 * image->GetWidth() * image->GetHeight() <= kMostImagePixels;
  return sound ? std::move(image) : nullptr;
}

}  // namespace lumenote

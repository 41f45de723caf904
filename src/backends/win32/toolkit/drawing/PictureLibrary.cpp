#include "backends/win32/toolkit/drawing/PictureLibrary.h"

#include "backends/win32/system/ComObject.h"
#include "backends/win32/system/SharedMemory.h"
#include "document/pictures/ImageSize.h"

namespace lumenote {
namespace {

/// A stream over a copy of the bytes, which the caller releases; null if there is no memory.
IStream* StreamOf(const std::string& bytes) {
  const HGLOBAL memory = SharedBytes(bytes);
  if (!memory) return nullptr;
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

// A turn by 90 degrees and a mirror exchange rows and columns.
void TurnUpright(Gdiplus::Image& image, const Orientation& turn) {
  if (turn.exchanged) image.RotateFlip(Gdiplus::Rotate90FlipX);
  if (turn.mirrored) image.RotateFlip(Gdiplus::RotateNoneFlipX);
  if (turn.upsideDown) image.RotateFlip(Gdiplus::RotateNoneFlipY);
}

std::string Encoded(Gdiplus::Image& image, const CLSID& writer) {
  IStream* stream = nullptr;
  if (FAILED(CreateStreamOnHGlobal(nullptr, TRUE, &stream))) return {};
  const ComOwner<IStream> owner(stream);
  HGLOBAL memory = nullptr;
  STATSTG status = {};
  const bool written = image.Save(stream, &writer, nullptr) == Gdiplus::Ok &&
                       SUCCEEDED(stream->Stat(&status, STATFLAG_NONAME)) &&
                       SUCCEEDED(GetHGlobalFromStream(stream, &memory));
  return written ? BytesIn(memory).substr(0, status.cbSize.QuadPart) : std::string();
}

}  // namespace lumenote

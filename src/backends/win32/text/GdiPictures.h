// The images of pictures in the text.
#pragma once
#include <list>
#include <memory>
#include <optional>

#include "backends/win32/toolkit/drawing/PictureLibrary.h"
#include "document/Document.h"

namespace lumenote {

/// Decodes a picture when it is first painted at a size, and keeps the last ones that fit into some
/// memory.
class GdiPictures {
 public:
  /// What is shown of an item's image, scaled to that size in pixels, or less if it would be huge;
  /// null if it cannot be shown. Valid until the next call.
  Gdiplus::Bitmap* Of(const Document& document, ItemId item, SIZE size);

 private:
  struct Entry {
    ItemId item;
    SIZE size;
    std::unique_ptr<Gdiplus::Bitmap> image;  // null: cannot be shown
  };

  void DropOldest();

  std::optional<PictureLibrary> library_;
  std::list<Entry> entries_;  // the last used first
};

}  // namespace lumenote

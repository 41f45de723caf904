// The images of pictures in the text.
#pragma once
#include <QCache>
#include <QImage>

#include "view/layout/Piece.h"

namespace lumenote {

struct QtPicture {
  QImage image;             // null if it cannot be shown
  bool photograph = false;  // came with losses
};

/// Decodes a picture when it is first painted at a size, and keeps as many as fit into some memory.
class QtPictures {
 public:
  /// Never gives more pixels than the note has: paper keeps them, and scales them itself.
  bool forPaper = false;

  /// What a box shows of its image, scaled to that size in pixels, or less if it would be huge.
  QtPicture Of(const Document& document, const InlineBox& box, QSizeF size);

 private:
  struct Key {
    ItemId item;
    QSize size;
    bool operator==(const Key&) const = default;
    friend std::size_t qHash(const Key& key, std::size_t seed) {
      return qHashMulti(seed, key.item, key.size.width(), key.size.height());
    }
  };

  static constexpr qsizetype kRoom = 96 << 10;  // kilobytes
  QCache<Key, QtPicture> pictures_{kRoom};
};

}  // namespace lumenote

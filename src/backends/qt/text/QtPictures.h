// The images of pictures in the text.
#pragma once
#include <QCache>
#include <QImage>

#include "view/layout/Piece.h"

namespace lumenote {

/// Decodes a picture when it is first painted at a size, and keeps as many as fit into some memory.
class QtPictures {
 public:
  /// What a box shows of its image, scaled to that size in pixels, or less if it would be huge;
  /// a null image if it cannot be shown.
  QImage Of(const Document& document, const InlineBox& box, QSizeF size);

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
  QCache<Key, QImage> images_{kRoom};
};

}  // namespace lumenote

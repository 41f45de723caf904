// Any bytes as the source of a picture, and as the data of one: a box has a size and shows a part
// of its image, whatever they say.
#include "Target.h"
#include "document/pictures/ImageSize.h"
#include "document/pictures/Orientation.h"
#include "document/pictures/PictureFrame.h"

using namespace lumenote;

void Try(std::string_view bytes) {
  const KeptItem item{.kind = KeptItem::Kind::Picture,
                      .source = "{\\pict" + std::string(bytes) + "}"};
  const PictureFrame frame = FrameOf(item);
  Check(frame.width > 0 && frame.height > 0 && frame.width < 1e24 && frame.height < 1e24);
  Check(frame.left >= 0 && frame.left < frame.right && frame.right <= 1);
  Check(frame.top >= 0 && frame.top < frame.bottom && frame.bottom <= 1);
  Check(!LabelOf(item).empty());
  Check(ImageFileOf(item).size() <= bytes.size() + 100);
  const PictureFrame before =
      BeforeTurning(frame, OrientationIn(frame, "\xFF\xD8\xFF" + std::string(bytes)));
  Check(before.left >= 0 && before.left < before.right && before.right <= 1);
  for (const PictureType type : {PictureType::Png, PictureType::Jpeg, PictureType::Bitmap})
    if (const auto size = SizeOfImage(type, bytes)) Check(size->width > 0 && size->height > 0);
}

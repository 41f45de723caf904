#include "document/pictures/PictureFrame.h"

#include <algorithm>

#include "base/Twips.h"
#include "document/pictures/BitmapFile.h"
#include "document/pictures/ImageSize.h"

namespace lumenote {
namespace {

constexpr std::size_t kLongestImageHead = 131072;  // bytes
constexpr double kTwipsPerMetafileUnit = kTwipsPerInch / 2540;
constexpr ImageSize kUnknown{1200, 900};

/// One side of a frame, in twips: the whole image's before it is cropped and scaled.
double GoalOf(const PictureExtent& extent, bool metafile) {
  if (extent.goal > 0) return extent.goal;
  return std::max(extent.size, 0) * (metafile ? kTwipsPerMetafileUnit : kTwipsPerPixel);
}

bool IsMetafile(PictureType type) {
  return type == PictureType::Metafile || type == PictureType::EnhancedMetafile;
}

/// A side that the source does not tell is in proportion to the other one.
ImageSize GoalsOf(const PictureSource& picture) {
  const bool metafile = IsMetafile(picture.type);
  ImageSize goals{GoalOf(picture.across, metafile), GoalOf(picture.down, metafile)};
  if (goals.width > 0 && goals.height > 0) return goals;
  const auto own = SizeOfImage(picture.type, BytesOf(picture, kLongestImageHead));
  const ImageSize natural = own.value_or(kUnknown);
  if (goals.width > 0) return {goals.width, goals.width * natural.height / natural.width};
  if (goals.height > 0) return {goals.height * natural.width / natural.height, goals.height};
  return natural;
}

/// What is shown of one side: how long, in twips, and which part, in fractions.
struct Cropped {
  double length = 0;
  double from = 0;
  double to = 1;
};

/// Crops and scales one side; cropping that would leave nothing is none.
Cropped Crop(const PictureExtent& extent, double goal) {
  const double before = std::max(extent.cropBefore, 0);
  const double behind = std::max(extent.cropBehind, 0);
  const double scale = extent.scale > 0 ? extent.scale / 100.0 : 1;
  if (before + behind >= goal) return {.length = goal * scale};
  const double from = before / goal;
  const double to = 1 - behind / goal;
  return {goal * (to - from) * scale, from, to};
}

}  // namespace

bool IsBoxed(const KeptItem& item) {
  return item.kind == KeptItem::Kind::Picture || item.kind == KeptItem::Kind::Object ||
         item.kind == KeptItem::Kind::Drawing;
}

PictureFrame FrameOf(const KeptItem& item) {
  const PictureSource picture = FindPicture(item.source).value_or(PictureSource{});
  const ImageSize goals = GoalsOf(picture);
  const Cropped across = Crop(picture.across, goals.width);
  const Cropped down = Crop(picture.down, goals.height);
  return {across.length, down.length, across.from, down.from, across.to, down.to};
}

std::u16string_view LabelOf(const KeptItem& item) {
  const auto picture = FindPicture(item.source);
  if (picture && IsMetafile(picture->type)) return u"M\u00E9tafichier";
  if (picture || item.kind == KeptItem::Kind::Picture) return u"Image";
  return item.kind == KeptItem::Kind::Object ? u"Objet" : u"Dessin";
}

std::string ImageFileOf(const KeptItem& item) {
  const auto picture = FindPicture(item.source);
  if (!picture) return {};
  switch (picture->type) {
    case PictureType::Png:
    case PictureType::Jpeg:
      return BytesOf(*picture);
    case PictureType::Bitmap:
    case PictureType::DeviceBitmap:
      return BitmapFile(*picture);
    default:
      return {};
  }
}

}  // namespace lumenote

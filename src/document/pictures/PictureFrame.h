// What is shown of kept content in the text: how large, which part, or else under which label.
#pragma once
#include <string>
#include <string_view>

#include "document/kept/Kept.h"

namespace lumenote {

/// Of the whole image `left`..`right` and `top`..`bottom` are shown, in fractions of its sides.
struct PictureFrame {
  double width = 0;  // twips, of what is shown
  double height = 0;
  double left = 0;
  double top = 0;
  double right = 1;
  double bottom = 1;
};

/// Whether the item stands in the text as a box: a picture, an object, a drawing.
bool IsBoxed(const KeptItem& item);
/// As the item's source says; where it says nothing, as the image's own data do.
PictureFrame FrameOf(const KeptItem& item);
/// For a box whose content cannot be shown.
std::u16string_view LabelOf(const KeptItem& item);
/// The file of the image that the item shows: PNG, JPEG or a bitmap, possibly damaged; empty if
/// there is none.
std::string ImageFileOf(const KeptItem& item);

}  // namespace lumenote

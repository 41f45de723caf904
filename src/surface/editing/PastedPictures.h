// Pictures that come from other programs, and go to them.
#pragma once
#include <string>
#include <string_view>
#include <vector>

#include "document/Document.h"
#include "platform/Clipboard.h"

namespace lumenote {

/// Whether a file, of which the beginning will do, is in a format that notes hold.
bool IsPicture(std::string_view file);

/// Whether images are wanted with that content, whose own do not matter: beside text they are not,
/// unless the text only tells whence an image was copied.
bool WantsImages(const ClipboardContent& content);

/// The images one behind the other in text of that format. Each is as large as it says, but not
/// wider than `room` (twips; 0 any). Files that are neither PNG nor JPEG are left out.
Fragment PictureFragment(const std::vector<std::string>& files, const CharFormat& format,
                         double room, FormatTables& formats);

/// The file of the picture that alone fills the range, if it is PNG or JPEG; else none.
std::vector<std::string> LonePicture(const Document& document, Selection range);

}  // namespace lumenote

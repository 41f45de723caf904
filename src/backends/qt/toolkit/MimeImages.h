// Images as desktop programs exchange them: as data, or as files that are dragged or copied.
#pragma once
#include <QMimeData>
#include <memory>
#include <string>
#include <vector>

#include "platform/Clipboard.h"

namespace lumenote {

/// Files that are dragged or copied, if all of them are images: in PNG or JPEG, what other formats
/// become, too; or that they are too large. Else empty.
ClipboardContent ImageFilesOf(const QMimeData& data);
/// The image itself, in PNG or JPEG; none if there is no image, or no whole one.
std::vector<std::string> ImagesOf(const QMimeData& data);
/// Whether `ImagesOf` could return anything, without transferring it.
bool HasImage(const QMimeData& data);

/// Offers the image, a JPEG also as PNG, made on request.
std::unique_ptr<QMimeData> OfferImage(const std::string& file);

}  // namespace lumenote

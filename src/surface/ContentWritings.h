// Writing the content of a surface bit by bit.
#pragma once
#include <memory>

#include "document/Document.h"
#include "platform/RichTextSurface.h"

namespace lumenote {

/// Writes a copy of the document, which shares its leaves: an edit made meanwhile copies the few
/// that it touches.
std::unique_ptr<ContentWriting> MakeContentWriting(const Document& document, FileType type,
                                                   RichTextSurface::ContentSink sink);

}  // namespace lumenote

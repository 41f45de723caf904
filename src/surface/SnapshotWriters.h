// Writes a snapshot of a surface in steps.
#pragma once
#include <memory>

#include "document/Document.h"
#include "platform/RichTextSurface.h"

namespace lumenote {

/// The snapshot is a copy of the document that shares its leaves, so an edit made meanwhile copies
/// only the leaves that it touches.
std::unique_ptr<SnapshotWriter> MakeSnapshotWriter(const Document& document, FileType type,
                                                   RichTextSurface::ContentSink sink);

}  // namespace lumenote

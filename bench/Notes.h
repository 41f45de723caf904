// Generated notes to measure with: French-looking text, the same on every run.
#pragma once
#include <functional>
#include <string>

#include "document/Document.h"

namespace lumenote {

enum class NoteShape {
  Plain,  // paragraphs of about 80 words in one format
  Rich,   // a change of format every 8 words or so, and paragraph formats
  One,    // a single paragraph in one format
};

/// The note as RTF, about `bytes` long. The note made last is kept: ask for one after another.
const std::string& NoteSource(NoteShape shape, int bytes);

/// A new document with the same content; no leaf of it is shared.
Document NoteDocument(NoteShape shape, int bytes);

/// Calls `action` with every shape and size that is measured, and a name like "rich/50m".
void ForEachNote(
    const std::function<void(NoteShape shape, int bytes, const std::string& name)>& action);

}  // namespace lumenote

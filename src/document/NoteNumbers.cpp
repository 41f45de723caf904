#include "document/NoteNumbers.h"

#include <algorithm>

#include "document/Footnotes.h"

namespace lumenote {

int NoteNumbers::At(const Document& document, Position position) {
  if (version_ != document.Version()) {
    version_ = document.Version();
    notes_.clear();
    counted_ = 0;
  }
  if (counted_ <= position) CountTo(document, position + 1);
  const auto note = std::ranges::lower_bound(notes_, position);
  const bool found = note != notes_.end() && *note == position;
  return found ? static_cast<int>(note - notes_.begin()) + 1 : 0;
}

bool NoteNumbers::IsNumbered(const FormatTables& tables, CharId id) {
  const CharFormat& format = tables.characters[id];
  if (!IsFootnote(tables, format)) return false;
  const auto [known, isNew] = numbered_.try_emplace(id);
  if (isNew) known->second = HasNumber(tables, format);
  return known->second;
}

void NoteNumbers::CountTo(const Document& document, Position end) {
  document.ForEachRun(counted_, end, [&](Position start, TextView text, CharId format) {
    if (!IsNumbered(document.Formats(), format)) return;
    const auto length = static_cast<Position>(text.Size());
    for (Position at = start; at < start + length; ++at) notes_.push_back(at);
  });
  counted_ = end;
}

}  // namespace lumenote

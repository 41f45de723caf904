#include "PipedNote.h"

#include <fstream>
#include <iostream>
#include <utility>

#include "backends/native/files/Disk.h"
#include "base/RuntimeError.h"
#include "lumenote/Note.h"

namespace lumenote {

PipedNote::PipedNote(std::string note)
    : came_(std::move(note)),
      path_(folder_.Path() + (Note::IsRtf(came_) ? "/note.rtf" : "/note.txt")) {
  std::ofstream file(path_, std::ios::binary);
  if (!file.write(came_.data(), static_cast<std::streamsize>(came_.size())).flush())
    throw RuntimeError(ErrorNumber::PathAccess);
}

PipedNote::Outcome PipedNote::Give(const std::string& path, std::ostream& out) {
  if (path.empty()) return Outcome::Deleted;
  std::string note;
  const bool given = IgnoringErrors([&] { note = ReadWholeFile(path); }) &&
                     out.write(note.data(), static_cast<std::streamsize>(note.size())).flush();
  if (given) return note == came_ ? Outcome::Unchanged : Outcome::Changed;
  folder_.Keep();
  std::cerr << "microedit : personne ne prend la note, elle est dans " << path << "\n";
  return Outcome::Failed;
}

}  // namespace lumenote

#include "PipedNote.h"

#include <filesystem>
#include <fstream>
#include <iostream>
#include <system_error>
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

void PipedNote::MakeReadOnly() const {
  using std::filesystem::perms;
  constexpr perms kWriting = perms::owner_write | perms::group_write | perms::others_write;
  std::error_code error;
  std::filesystem::permissions(std::u8string(path_.begin(), path_.end()), kWriting,
                               std::filesystem::perm_options::remove, error);
  if (error) throw RuntimeError(ErrorNumber::PathAccess);
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

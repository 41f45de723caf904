// lumenote link: links a system program under a name that the editor knows.
#include <algorithm>
#include <filesystem>
#include <system_error>

#include "Command.h"
#include "NoteFile.h"
#include "UserPrograms.h"
#include "backends/native/files/Disk.h"
#include "base/Characters.h"
#include "base/CommandLine.h"
#include "base/Strings.h"

namespace lumenote::tool {
namespace {

namespace fs = std::filesystem;

const std::u16string& PathOf(const ProgramTable& programs, const std::string& name) {
  const std::u16string lower = Lower(FromUtf8(name));
  const auto row = std::find_if(programs.rows.begin(), programs.rows.end(),
                                [&](const auto& known) { return Lower(known.name) == lower; });
  if (row == programs.rows.end()) throw CommandLineError("application inconnue : " + name);
  return row->path;
}

void CheckProgram(const std::string& program) {
  constexpr fs::perms kExecutable =
      fs::perms::owner_exec | fs::perms::group_exec | fs::perms::others_exec;
  std::error_code error;
  const fs::file_status status = fs::status(program, error);
  if (!fs::exists(status)) throw Failure(program + " : fichier introuvable");
  if (!fs::is_regular_file(status) || (status.permissions() & kExecutable) == fs::perms::none)
    throw Failure(program + " : pas un programme");
}

/// Creates the new link beside the old one and renames it, so that a link is never missing.
void PutLink(const fs::path& target, const fs::path& link) {
  const fs::path fresh = link.string() + ".new";
  fs::create_directories(link.parent_path());
  const fs::file_status old = fs::symlink_status(link);
  if (fs::exists(old) && !fs::is_symlink(old))
    throw Failure(link.string() + " : pas un lien, laissé en place");
  if (fs::is_symlink(fs::symlink_status(fresh))) fs::remove(fresh);
  fs::create_symlink(target, fresh);
  fs::rename(fresh, link);
}

}  // namespace

int Link(Arguments arguments) {
  const CommandLine line(arguments, {});
  if (line.Operands().size() != 2)
    throw CommandLineError("une application et un programme sont attendus");
  const DrivePaths drives = DrivePaths::OfUser();
  const ProgramTable programs = FirstCandidates(drives);
  const std::u16string& path = PathOf(programs, line.Operands()[0]);
  const std::string program = AbsolutePath(line.Operands()[1]);
  CheckProgram(program);
  const fs::path link = NativePath(drives, path);
  if (fs::path(program).lexically_normal() == link.lexically_normal())
    throw Failure(program + " : se désignerait lui-même");
  try {
    PutLink(program, link);
  } catch (const fs::filesystem_error& error) {
    throw Failure(link.string() + " : création impossible : " + error.code().message());
  }
  return 0;
}

}  // namespace lumenote::tool

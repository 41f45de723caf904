// lumenote links: lists the external programs.
#include "Command.h"
#include "NoteFile.h"
#include "UserPrograms.h"
#include "backends/native/files/Disk.h"
#include "base/CommandLine.h"
#include "base/Strings.h"

namespace lumenote::tool {
namespace {

/// The program behind all links; "-" if it is missing.
std::string Target(const DrivePaths& drives, const std::u16string& path) {
  if (path.empty()) return "-";
  return FollowLinks(NativePath(drives, path));
}

}  // namespace

int Links(Arguments arguments) {
  if (!CommandLine(arguments, {}).Operands().empty())
    throw CommandLineError("links n'attend rien d'autre");
  const DrivePaths drives = DrivePaths::OfUser();
  std::string lines;
  for (const auto& [name, path] : InstalledPrograms(drives).rows)
    lines += ToUtf8(name) + '\t' + Target(drives, path) + '\n';
  WriteBytes("-", lines);
  return 0;
}

}  // namespace lumenote::tool

// lumenote links: lists the external programs.
#include <system_error>

#include "Command.h"
#include "NoteFile.h"
#include "UserPrograms.h"
#include "base/CommandLine.h"
#include "base/Strings.h"

namespace lumenote::tool {
namespace {

/// The program behind all links; "-" if it is missing.
std::string Target(const DrivePaths& drives, const std::u16string& path) {
  if (path.empty()) return "-";
  const std::filesystem::path native = NativePath(drives, path);
  std::error_code error;
  const std::filesystem::path target = std::filesystem::canonical(native, error);
  return error ? native.string() : target.string();
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

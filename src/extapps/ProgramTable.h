// The external programs: where each one is installed.
#pragma once
#include <array>
#include <cstddef>
#include <string>
#include <string_view>

namespace lumenote {

class Files;
class Folders;
class ProgramFolders;
class Registry;

enum class Program { Qjot, Atlantis, WinWord, ReadIris, FineReader };
inline constexpr std::size_t kPrograms = 5;

/// What is known of the programs since the table was filled. A program that was not found has an
/// empty path; one that was may have gone since.
struct ProgramTable {
  struct Row {
    std::u16string name;
    std::u16string path;
  };

  std::u16string dossierDocuments;
  std::u16string dossierProgrammes;
  std::u16string dossierTemp;  // without its trailing backslash
  std::u16string tmpFile;
  std::u16string tmpFileCD;
  std::u16string tmpFileRtf;
  std::array<Row, kPrograms> rows;

  const std::u16string& Path(Program program) const {
    return rows[static_cast<std::size_t>(program)].path;
  }
};

/// What the look-up asks; all of it outlives the call.
struct ProgramSources {
  const Files& files;
  const Folders& folders;
  std::u16string temp;  // the control's temporary folder
  const ProgramFolders& programs;
  const Registry& registry;
};

/// Of each program the first place where it stands: below the Program Files folder, else its
/// fallback.
ProgramTable ChercherApplis(const ProgramSources& sources);
/// The executable that serves an automation class, as registered; may name no file at all.
std::u16string CheminParProgId(const Registry& registry, std::u16string_view dossierProgrammes,
                               std::u16string_view progId);
/// A string value under a root key, the root's handle value as decimal text; only the local machine
/// has values. Empty when there is none. Raises TypeMismatch or Overflow for a root that is no
/// number.
std::u16string LireValeurReg(const Registry& registry, std::u16string_view racine,
                             std::u16string_view cle, std::u16string_view valeur);

}  // namespace lumenote

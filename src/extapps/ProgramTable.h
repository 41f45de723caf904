// The external programs and where each is installed.
#pragma once
#include <array>
#include <cstddef>
#include <string>
#include <string_view>

namespace lumenote {

class Files;
class Folders;
class Platform;
class ProgramFolders;
class Registry;

enum class Program { Qjot, Atlantis, WinWord, ReadIris, FineReader };
inline constexpr std::size_t kPrograms = 5;

/// The result of the last look-up. A program that was not found has an empty path; one that was may
/// have been removed since.
struct ProgramTable {
  struct Row {
    std::u16string name;
    std::u16string path;
  };

  std::u16string dossierDocuments;
  std::u16string dossierProgrammes;
  std::u16string dossierTemp;  // without a trailing backslash
  std::u16string tmpFile;
  std::u16string tmpFileCD;
  std::u16string tmpFileRtf;
  std::array<Row, kPrograms> rows;

  const std::u16string& Path(Program program) const {
    return rows[static_cast<std::size_t>(program)].path;
  }
};

/// What the look-up consults; all must outlive the call.
struct ProgramSources {
  const Files& files;
  const Folders& folders;
  std::u16string temp;  // the control's temporary folder
  const ProgramFolders& programs;
  const Registry& registry;
};

/// Looks up each program, below the Program Files folder first, then at its fallback.
ProgramTable ChercherApplis(const ProgramSources& sources);
/// The same on that machine; `temp` is the control's temporary folder.
ProgramTable ChercherApplis(Platform& machine, std::u16string_view temp);
/// The executable registered for an automation class; the file may not exist.
std::u16string CheminParProgId(const Registry& registry, std::u16string_view dossierProgrammes,
                               std::u16string_view progId);
/// A string value under a root key, given as the root's handle value in decimal; only the local
/// machine has values. Empty if there is none. Raises TypeMismatch or Overflow if the root is not a
/// number.
std::u16string LireValeurReg(const Registry& registry, std::u16string_view racine,
                             std::u16string_view cle, std::u16string_view valeur);

}  // namespace lumenote

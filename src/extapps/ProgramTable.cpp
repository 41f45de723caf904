// Looks up programs in folders and the registry.
#include "extapps/ProgramTable.h"

#include <cstdint>

#include "base/Characters.h"
#include "base/Numbers.h"
#include "lumenote/Platform.h"
#include "platform/Files.h"
#include "platform/Folders.h"
#include "platform/Paths.h"
#include "platform/ProgramFolders.h"
#include "platform/Registry.h"

namespace lumenote {
namespace {

constexpr std::int32_t kLocalMachine = -2147483646;  // the root's handle value
constexpr std::u16string_view kLocalMachineText = u"-2147483646";

enum class Fallback { BesideComponent, AutomationClass, RegistryValue };

/// Where to look for a program. The fallback's source is a file name beside the component, a class
/// name, or a key whose value names a folder.
struct ProgramLocation {
  std::u16string_view name;
  std::u16string_view belowPrograms;
  Fallback fallback;
  std::u16string_view source;
  std::u16string_view value = {};
  std::u16string_view belowValue = {};
};

constexpr std::array<ProgramLocation, kPrograms> kPlaces{{
    {u"Qjot", u"\\qjot\\qjot.exe", Fallback::BesideComponent, u"\\qjot.exe"},
    {u"Atlantis", u"\\Atlantis Nova\\Atlantis.exe", Fallback::BesideComponent, u"\\Atlantis.exe"},
    {u"WinWord", u"\\Microsoft\\Office11\\WinWord.exe", Fallback::AutomationClass,
     u"Word.Application"},
    {u"ReadIris", u"\\Readiris Pro 10 Demo\\ReadIris.exe", Fallback::RegistryValue,
     u"SOFTWARE\\I.R.I.S.\\Readiris\\10.0", u"path", u"\\ReadIris.exe"},
    {u"FineReader", u"\\ABBYY FineReader 7.0 Professional Edition\\FineReader.exe",
     Fallback::RegistryValue,
     u"SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\App Paths\\FineReader.exe", u"Path",
     u"\\FineReader.exe"},
}};

std::u16string Joined(std::u16string_view left, std::u16string_view right) {
  return std::u16string(left).append(right);
}

std::u16string FallbackPath(const ProgramSources& sources, const ProgramTable& table,
                            const ProgramLocation& location) {
  switch (location.fallback) {
    case Fallback::BesideComponent:
      return Joined(sources.programs.Component(), location.source);
    case Fallback::AutomationClass:
      return CheminParProgId(sources.registry, table.dossierProgrammes, location.source);
    case Fallback::RegistryValue:
      return Joined(
          LireValeurReg(sources.registry, kLocalMachineText, location.source, location.value),
          location.belowValue);
  }
  return {};
}

std::u16string Find(const ProgramSources& sources, const ProgramTable& table,
                    const ProgramLocation& location) {
  std::u16string path = FoldBackslashes(Joined(table.dossierProgrammes, location.belowPrograms));
  if (sources.files.Exists(path)) return path;
  path = FoldBackslashes(FallbackPath(sources, table, location));
  return sources.files.Exists(path) ? path : std::u16string();
}

void FindFolders(const ProgramSources& sources, ProgramTable& table) {
  table.dossierDocuments = sources.folders.Documents();
  table.dossierProgrammes = sources.programs.Programs();
  table.dossierTemp = sources.temp;
  if (table.dossierTemp.ends_with(u'\\')) table.dossierTemp.pop_back();
  table.tmpFile = table.dossierTemp + u"\\TmpFile.tmp";
  table.tmpFileCD = table.dossierTemp + u"\\TmpFileCD.Txt";
  table.tmpFileRtf = table.dossierTemp + u"\\TmpFileRtf.Rtf";
}

/// The executable of a command line. A space before it marks a switch. The outer quotes are removed
/// first, so only a line quoted from end to end gives a correct path.
std::u16string ExecutableOf(std::u16string_view command) {
  if (command.starts_with(u'"')) {
    command.remove_prefix(1);
    if (!command.empty()) command.remove_suffix(1);
  }
  return std::u16string(command.substr(0, command.find(u" /")));
}

}  // namespace

ProgramTable ChercherApplis(const ProgramSources& sources) {
  ProgramTable table;
  FindFolders(sources, table);
  for (std::size_t i = 0; i < kPrograms; ++i)
    table.rows[i] = {std::u16string(kPlaces[i].name), Find(sources, table, kPlaces[i])};
  return table;
}

ProgramTable ChercherApplis(Platform& machine, std::u16string_view temp) {
  return ChercherApplis({.files = machine.FileSystem(),
                         .folders = machine.SpecialFolders(),
                         .temp = std::u16string(temp),
                         .programs = machine.InstalledPrograms(),
                         .registry = machine.MachineRegistry()});
}

std::u16string CheminParProgId(const Registry& registry, std::u16string_view dossierProgrammes,
                               std::u16string_view progId) {
  constexpr std::u16string_view kVariable = u"%PROGRAMFILES%";
  const std::u16string classes = u"Software\\Classes\\";
  const auto id = registry.Read(classes + std::u16string(progId) + u"\\CLSID", u"");
  if (!id) return {};
  const auto server = registry.Read(classes + u"CLSID\\" + *id + u"\\LocalServer32", u"");
  if (!server) return {};
  std::u16string path = ExecutableOf(*server);
  // The variable is deliberately not expanded: such a path names no file, so the program counts as
  // missing.
  if (Upper(path).starts_with(kVariable))
    path = Joined(dossierProgrammes, u" & Right(sPath, Len(sPath) - 14)");
  return path;
}

std::u16string LireValeurReg(const Registry& registry, std::u16string_view racine,
                             std::u16string_view cle, std::u16string_view valeur) {
  if (ParseInt32(racine) != kLocalMachine) return {};
  return registry.Read(cle, valeur).value_or(u"");
}

}  // namespace lumenote

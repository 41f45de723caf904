// The command-line tool: notes without a window.
#include <algorithm>
#include <array>
#include <iostream>
#include <new>
#include <string>
#include <vector>

#include "Command.h"
#include "base/CommandLine.h"

namespace lumenote::tool {
namespace {

struct Command {
  std::string_view name;
  std::string_view arguments;
  std::string_view purpose;
  int (*run)(Arguments);
};

constexpr std::array<Command, 6> kCommands{{
    {"text", "NOTE...",
     R"(  text      écrit le texte de la note en UTF-8, celui de plusieurs sous leurs noms
)",
     Text},
    {"convert", "[--to rtf|txt|html] [--backup | --dry-run] NOTE... CIBLE",
     R"(  convert   convertit une note entre RTF, texte et HTML, remplaçant CIBLE d'un coup ; avec
            --to, plusieurs notes ou un dossier dans le dossier CIBLE, créé s'il n'existe
            pas. Aucune de ces notes, aucun fichier à côté de la sienne n'y est jamais
            remplacé. --backup garde ce qui est remplacé sous son nom suivi de "~". --dry-run
            n'écrit rien et dit, par note, son nom, celui de sa cible et si elle serait
            remplacée
)",
     Convert},
    {"clean", "[--list LISTE] [-o CIBLE | --backup | --dry-run] NOTE...",
     R"(  clean     met au propre des notes RTF issues d'une reconnaissance de texte : les
            paires de LISTE, les blancs, un seul format ; remplace chaque note d'un
            coup, ou écrit l'unique NOTE dans CIBLE. --backup garde l'ancienne note
            sous son nom suivi de "~". --dry-run n'écrit rien et dit, par paire, le
            texte fautif, le texte juste et le nombre d'occurrences
)",
     Clean},
    {"link", "NOM PROGRAMME",
     R"(  link      fait de PROGRAMME l'application NOM : Qjot, Atlantis, WinWord, ReadIris
            ou FineReader (voir docs/programmes.md)
)",
     Link},
    {"links", "",
     R"(  links     dit où mène chaque application, "-" pour une absente
)",
     Links},
    {"pilot", "[--root DOSSIER] [SCRIPT]",
     R"(  pilot     conduit l'éditeur, sans fenêtre, par un script (voir docs/pilot.md)
)",
     Pilot},
}};

constexpr std::string_view kCommon = R"(
Les fichiers sont des chemins du système ; l'extension .rtf, .txt, .html ou .htm en
dit le format. Un dossier vaut pour toutes les notes qu'il contient, sous-dossiers
compris ; clean n'y prend que les .rtf, convert celles d'un autre format. Avec text,
convert et clean "-" est l'entrée ou la sortie standard : en entrée le RTF se reconnaît
à son début, en sortie c'est l'autre format (RTF pour du HTML), sauf avec --to. Un
fichier texte est lu en UTF-8, en UTF-16 avec marque d'ordre des octets ou en page de
code 1252. Il est écrit avec CR LF, en UTF-8 si la note en vient, sinon en page de code
1252, ou en UTF-8 avec marque si un caractère y manque. Après "--" tout argument est un
nom de fichier.

État de sortie : 0, 1 quand une note ne peut être lue ou écrite ou une application
liée, 2 pour une ligne de commande incorrecte. De pilot : 1 quand une attente n'est
pas remplie, 2 pour une ligne incomprise.
)";

int Print(std::string_view text) {
  std::cout << text;
  return 0;
}

/// The help for these commands; that for all of them says how to get it, too.
int Help(std::span<const Command> commands) {
  std::string usage;
  std::string purposes = "\n";
  for (const Command& command : commands) {
    usage += usage.empty() ? "Utilisation : lumenote " : "              lumenote ";
    usage += command.name;
    if (!command.arguments.empty()) (usage += ' ') += command.arguments;
    usage += '\n';
    purposes += command.purpose;
  }
  if (commands.size() > 1) usage += "              lumenote [COMMANDE] --help | --version\n";
  return Print(usage + purposes + std::string(kCommon));
}

bool AsksForHelp(std::string_view argument) { return argument == "--help" || argument == "-h"; }

int Run(const Command& command, Arguments arguments) {
  const auto options = arguments.first(
      static_cast<std::size_t>(std::ranges::find(arguments, "--") - arguments.begin()));
  if (std::ranges::any_of(options, AsksForHelp)) return Help({&command, 1});
  return command.run(arguments);
}

int Run(Arguments arguments) {
  if (arguments.empty()) throw CommandLineError("une commande est attendue");
  if (arguments[0] == "help") {
    if (arguments.size() == 1) return Help(kCommands);
    arguments = arguments.subspan(1);
    return Run(std::array<std::string_view, 2>{arguments[0], "--help"});
  }
  if (AsksForHelp(arguments[0])) return Help(kCommands);
  if (arguments[0] == "--version") return Print("lumenote " LUMENOTE_VERSION "\n");
  for (const Command& command : kCommands)
    if (command.name == arguments[0]) return Run(command, arguments.subspan(1));
  throw CommandLineError("commande inconnue : " + std::string(arguments[0]));
}

int Fail(const std::string& why, int status) {
  std::cerr << "lumenote : " << why << '\n';
  return status;
}

}  // namespace

int RunTool(std::span<const std::string> arguments) {
  try {
    const std::vector<std::string_view> views(arguments.begin(), arguments.end());
    return Run(views);
  } catch (const CommandLineError& error) {
    return Fail(std::string(error.what()) + " (voir lumenote --help)", 2);
  } catch (const Failure& failure) {
    return Fail(failure.what(), 1);
  } catch (const std::bad_alloc&) {
    return Fail("mémoire insuffisante", 1);
  }
}

}  // namespace lumenote::tool

// The command-line tool: notes without a window.
#include <array>
#include <iostream>
#include <new>
#include <string>
#include <vector>

#include "Command.h"
#include "base/CommandLine.h"

namespace lumenote::tool {
namespace {

constexpr std::string_view kUsage =
    R"(Utilisation : lumenote text NOTE
              lumenote convert [--to rtf|txt|html] SOURCE CIBLE
              lumenote clean [--list LISTE] [-o CIBLE] [--dry-run] NOTE...
              lumenote link NOM PROGRAMME
              lumenote links
              lumenote pilot [--root DOSSIER] [SCRIPT]
              lumenote --help | --version

  text      écrit le texte de la note en UTF-8
  convert   convertit une note entre RTF, texte et HTML, remplaçant CIBLE d'un coup
  clean     met au propre des notes RTF issues d'une reconnaissance de texte : les
            paires de LISTE, les blancs, un seul format ; remplace chaque note d'un
            coup, ou écrit l'unique NOTE dans CIBLE. --dry-run n'écrit rien et dit,
            par paire, le texte fautif, le texte juste et le nombre d'occurrences
  link      fait de PROGRAMME l'application NOM : Qjot, Atlantis, WinWord, ReadIris
            ou FineReader (voir docs/programmes.md)
  links     dit où mène chaque application, "-" pour une absente
  pilot     conduit l'éditeur, sans fenêtre, par un script (voir docs/pilot.md)

Les fichiers sont des chemins du système ; l'extension .rtf, .txt, .html ou .htm en
dit le format. Avec text, convert et clean "-" est l'entrée ou la sortie standard :
en entrée le RTF se reconnaît à son début, en sortie c'est l'autre format (RTF pour
du HTML), sauf avec --to. Un fichier texte est en page de code 1252 avec CR LF ; en
entrée, une marque d'ordre des octets est suivie.

État de sortie : 0, 1 quand une note ne peut être lue ou écrite ou une application
liée, 2 pour une ligne de commande incorrecte. De pilot : 1 quand une attente n'est
pas remplie, 2 pour une ligne incomprise.
)";

struct Command {
  std::string_view name;
  int (*run)(Arguments);
};

constexpr std::array<Command, 6> kCommands{{{"text", Text},
                                            {"convert", Convert},
                                            {"clean", Clean},
                                            {"link", Link},
                                            {"links", Links},
                                            {"pilot", Pilot}}};

int Print(std::string_view text) {
  std::cout << text;
  return 0;
}

int Run(Arguments arguments) {
  if (arguments.empty()) throw CommandLineError("une commande est attendue");
  if (arguments[0] == "--help") return Print(kUsage);
  if (arguments[0] == "--version") return Print("lumenote " LUMENOTE_VERSION "\n");
  for (const Command& command : kCommands)
    if (command.name == arguments[0]) return command.run(arguments.subspan(1));
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

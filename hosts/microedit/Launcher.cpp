// The launcher: opens the editor on a note's file.
#include "Launcher.h"

#include <fstream>
#include <iostream>

#include "PipedNote.h"
#include "backends/headless/FixedLayouter.h"
#include "backends/headless/MemoryClipboard.h"
#include "backends/native/files/Disk.h"
#include "backends/native/files/StandardInput.h"
#include "base/CommandLine.h"
#include "base/Numbers.h"
#include "base/RuntimeError.h"
#include "base/Strings.h"
#include "base/TextEncoding.h"
#include "control/Component.h"
#include "editor/storage/DocumentStorage.h"
#include "forms/Backend.h"
#include "lumenote/CoBxRtf.h"
#include "lumenote/NativePaths.h"
#include "pilot/RunPilot.h"
#include "pilot/sandbox/FolderSandbox.h"
#include "platform/Files.h"
#include "platform/Paths.h"
#include "rtf/read/Reader.h"
#include "surface/DocumentSurface.h"

namespace lumenote {

namespace {

constexpr const char* kUsage = R"(Utilisation : microedit [OPTION...] NOTE

Ouvre l'éditeur sur NOTE, un fichier .rtf ou .txt (chemin du système ou avec
lettre de lecteur). Un fichier .rtf ou .txt qui manque est créé. Si NOTE est
« - », la note vient de l'entrée standard et part, l'éditeur fermé, sur la
sortie standard.

  --title T       titre de la fenêtre
  --frame T       titre du cadre
  --colour N      couleur de la fenêtre, nombre décimal 0xBBGGRR
  --key K         nom sous lequel la place de la fenêtre est gardée
  --app NOM       nom de l'application pour les styles et la liste de corrections
  --readonly      ouvre en lecture seule
  --capture PNG   dessine la fenêtre dans un fichier PNG et quitte
  --pdf PDF       met NOTE en pages dans un fichier PDF, sans fenêtre ni écran

  --pilot SCRIPT [--root DOSSIER] [--shot PNG]
                  conduit l'éditeur par un script (voir docs/pilot.md)
  -h, --help      affiche cette aide
  --version       affiche la version

État de sortie : 0, 1 quand la note ne peut être ouverte ou un fichier écrit, 2 pour
une ligne de commande incorrecte ; avec « - » aussi 3 quand la note n'a pas changé,
4 quand elle a été supprimée.
)";

constexpr const char* kDesktopsOwn = "-1";  // also in a dark palette

constexpr OptionRule kOptions[] = {{"--title", true},
                                   {"--frame", true},
                                   {"--colour", true},
                                   {"--key", true},
                                   {"--app", true},
                                   {"--readonly"},
                                   {"--capture", true},
                                   {"--pdf", true},
                                   {"--pilot", true},
                                   {"--root", true},
                                   {"--shot", true},
                                   {"--help"},
                                   {"-h"},
                                   {"--version"}};

int Fail(const std::string& message, int status) {
  std::cerr << "microedit : " << message << "\n";
  return status;
}

/// Raises CommandLineError for what the window would take for no colour.
void CheckColour(const CommandLine& line) {
  try {
    ParseInt32(FromUtf8(line.Value("--colour").value_or(kDesktopsOwn)));
  } catch (const RuntimeError&) {
    throw CommandLineError("--colour attend un nombre décimal");
  }
}

/// A folder, or a device.
bool IsOtherThanAFile(const std::string& typed) {
  const std::optional<FileStatus> status = StatusOf(AbsolutePath(typed));
  return status && !status->isFile;
}

/// Why the note cannot be opened; empty if it can. A missing note can be created.
std::string Obstacle(const Files& files, std::u16string_view path) {
  const std::u16string format = FormatDe(path);
  try {
    if (!files.Exists(path))
      return format == u"rtf" || format == u"txt" ? "" : "fichier introuvable";
    const std::string bytes = files.ReadAll(path);
    return format == u"txt" || LooksLikeRtf(bytes) ? "" : "n'est pas un fichier RTF";
  } catch (const RuntimeError& error) {
    return ToUtf8(error.Description());
  }
}

/// A read-only note is passed as text, so that its file cannot be written whatever its own
/// attribute says.
void HandOver(CoBxRtf& control, const Files& files, const std::u16string& path, bool readOnly) {
  if (!readOnly) {
    control.pStrOrchm(path);
    return;
  }
  control.pAttribut(u"readonly");
  const std::string bytes = files.ReadAll(path);
  const bool text = FormatDe(path) == u"txt";
  control.pStrOrchm(DecodeText(bytes, text ? DetectEncoding(bytes) : TextEncoding::Windows1252));
}

void Describe(CoBxRtf& control, const CommandLine& line) {
  const auto text = [&](std::string_view option, std::string_view standard) {
    return FromUtf8(line.Value(option).value_or(std::string(standard)));
  };
  control.pNomAppli(text("--app", "microedit"));
  control.pTitreFenêtre(text("--title", "MicroEditeur"));
  control.pTitreCadre(text("--frame", ""));
  control.pCouleurFen(text("--colour", kDesktopsOwn));
  control.pSScléReg(text("--key", "microedit"));
}

/// Opens the editor and renders it to a file. Returns the exit status.
int Capture(CoBxRtf& control, Desktop& desktop, const std::string& png) {
  control.ShowMicroEdit();
  const Form* editor = control.Parts().windows.Active();
  if (!editor) return 1;  // the user was told why
  desktop.Capture(*editor, png);
  return 0;
}

/// The drive-letter path of a path that the user typed.
std::u16string PathOf(const std::string& typed, Desktop& desktop) {
  const std::u16string path = FromUtf8(typed);
  return IsDrivePath(path) ? path : desktop.ToDrivePath(typed);
}

/// Lays the note out on pages and writes them to a PDF file. Returns the exit status.
int WritePdf(const CommandLine& line, Desktop& desktop) {
  desktop.WorkWithoutDisplay();
  const std::string& note = line.Operands().front();
  const std::string pdf = *line.Value("--pdf");
  Files& files = desktop.Machine().FileSystem();
  const std::u16string path = PathOf(note, desktop);
  const std::u16string target = PathOf(pdf, desktop);
  if (!files.Exists(path)) return Fail(note + " : fichier introuvable", 1);
  if (files.SameFile(path, target)) return Fail(pdf + " : est la note elle-même", 2);
  if (const std::string why = Obstacle(files, path); !why.empty())
    return Fail(note + " : " + why, 1);
  MemoryClipboard clipboard;
  FixedBreaker breaker(0);
  DocumentSurface surface(clipboard, files, breaker);
  surface.LoadFile(path, FormatDe(path) == u"txt" ? FileType::Text : FileType::Rtf, std::nullopt);
  const std::string title = line.Value("--title").value_or(ToUtf8(BaseName(FileName(path))));
  const std::string bytes = desktop.Pdf(surface.Content(), FromUtf8(title));
  try {
    files.Write(target, bytes);
  } catch (const RuntimeError& error) {
    return Fail(pdf + " : " + ToUtf8(error.Description()), 1);
  }
  return 0;
}

int Edit(const CommandLine& line, Desktop& desktop) {
  const std::string& note = line.Operands().front();
  const std::u16string path = PathOf(note, desktop);
  if (!IsDrivePath(path)) return Fail(note + " : chemin trop court", 2);
  const Files& files = desktop.Machine().FileSystem();
  if (const std::string why = Obstacle(files, path); !why.empty())
    return Fail(note + " : " + why, 1);
  CoBxRtf control(desktop.Machine());
  Describe(control, line);
  HandOver(control, files, path, line.Has("--readonly"));
  if (const auto png = line.Value("--capture")) return Capture(control, desktop, *png);
  const auto ends = desktop.WatchEnds([&control] { control.KeepUnsaved(); });
  control.ShowMicroEdit(1);
  return control.Parts().session->loaded ? 0 : 1;
}

/// Edits the note on standard input; what becomes of it goes to standard output. Returns the exit
/// status.
int Filter(const CommandLine& line, Desktop& desktop) {
  if (line.Has("--capture")) return Fail("--capture demande un fichier", 2);
  desktop.UseStandardStreams();
  PipedNote note(ReadStandardInput());
  if (line.Has("--readonly")) note.MakeReadOnly();
  CoBxRtf control(desktop.Machine());
  Describe(control, line);
  control.NotePath(desktop.ToDrivePath(note.Path()));
  const auto ends = desktop.WatchEnds([&control] { control.KeepUnsaved(); });
  control.ShowMicroEdit(1);
  if (!control.Parts().session->loaded) return 1;  // the user was told why
  const std::u16string left = control.pStrOrchm();
  return static_cast<int>(note.Give(left.empty() ? "" : ToNativePath(left), std::cout));
}

/// Runs a script in a sandbox, on real windows.
int DrivePilot(const CommandLine& line, Desktop& desktop) {
  std::ifstream script(*line.Value("--pilot"), std::ios::binary);
  if (!script) return Fail(*line.Value("--pilot") + " : lecture impossible", 2);
  const auto root = line.Value("--root");
  const auto sandbox =
      root ? std::make_unique<FolderSandbox>(*root) : std::make_unique<FolderSandbox>();
  PilotRun run{
      script, std::cout, std::cerr, *sandbox, desktop.ScriptWindows(), desktop.ScriptUser()};
  if (const auto png = line.Value("--shot"))
    run.atEnd = [&desktop, png](const Form& active) { desktop.Capture(active, *png); };
  return RunPilot(run);
}

int Follow(const CommandLine& line, Desktop& desktop) {
  if (line.Has("--help") || line.Has("-h")) {
    std::cout << kUsage;
    return 0;
  }
  if (line.Has("--version")) {
    std::cout << "microedit " LUMENOTE_VERSION "\n";
    return 0;
  }
  if (line.Operands().size() != (line.Has("--pilot") ? 0 : 1))
    return Fail("une note est attendue (voir --help)", 2);
  if (line.Has("--pilot")) return DrivePilot(line, desktop);
  CheckColour(line);
  const std::string& note = line.Operands().front();
  if (note != "-" && IsOtherThanAFile(note)) return Fail(note + " : n'est pas un fichier", 1);
  if (line.Has("--pdf")) return WritePdf(line, desktop);
  return note == "-" ? Filter(line, desktop) : Edit(line, desktop);
}

}  // namespace

std::string Desktop::Pdf(const Document&, std::u16string_view) {
  throw RuntimeError(ErrorNumber::InvalidArgument, u"--pdf demande l'éditeur de Linux");
}

int Launch(std::span<const std::string_view> arguments, Desktop& desktop) {
  try {
    return Follow(CommandLine(arguments, kOptions), desktop);
  } catch (const CommandLineError& error) {
    return Fail(error.what(), 2);
  } catch (const RuntimeError& error) {
    return Fail(ToUtf8(error.Description()), 1);
  }
}

}  // namespace lumenote

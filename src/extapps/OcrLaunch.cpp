#include "extapps/OcrLaunch.h"

#include "lumenote/Platform.h"
#include "platform/Files.h"
#include "platform/Processes.h"
#include "platform/ProgramCommand.h"

namespace lumenote {

void OuvrirOcr(EditorWindow& editor, Processes& processes, std::u16string_view path) {
  if (!editor.Services().FileSystem().Exists(path)) return;
  editor.SuspendreDessus();
  processes.Start(QuotedProgram(path));
}

}  // namespace lumenote

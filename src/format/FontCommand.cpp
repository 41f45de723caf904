#include "format/FontCommand.h"

#include "forms/values/FontChoice.h"
#include "session/EditorWindow.h"

namespace lumenote {

void FmtPolice(EditorWindow& editor, Form* dialog) {
  RichTextSurface& surface = editor.Document();
  const FontChoice shown{.name = surface.SelFontName(),
                         .size = surface.SelFontSize(),
                         .bold = surface.SelBold(),
                         .italic = surface.SelItalic(),
                         .underline = surface.SelUnderline(),
                         .strike = surface.SelStrikeThru(),
                         .colour = surface.SelColor()};
  const auto chosen = editor.ChooseFont(shown, dialog);
  if (!chosen) return;
  AsOneStep(surface, [&] {
    if (chosen->name) surface.SelFontName(*chosen->name);
    if (chosen->size) surface.SelFontSize(*chosen->size);
    if (chosen->bold) surface.SelBold(*chosen->bold);
    if (chosen->italic) surface.SelItalic(*chosen->italic);
    if (chosen->underline) surface.SelUnderline(*chosen->underline);
    if (chosen->strike) surface.SelStrikeThru(*chosen->strike);
    if (chosen->colour) surface.SelColor(*chosen->colour);
  });
}

}  // namespace lumenote

#include "format/FontCommand.h"

#include "forms/values/FontChoice.h"
#include "session/EditorWindow.h"

namespace lumenote {
namespace {

/// What of the answer the dialog did not show.
FontChoice Changes(const FontChoice& shown, FontChoice chosen) {
  const auto drop = [](const auto& before, auto& after) {
    if (before == after) after.reset();
  };
  drop(shown.name, chosen.name);
  drop(shown.size, chosen.size);
  drop(shown.bold, chosen.bold);
  drop(shown.italic, chosen.italic);
  drop(shown.underline, chosen.underline);
  drop(shown.strike, chosen.strike);
  drop(shown.colour, chosen.colour);
  return chosen;
}

}  // namespace

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
  const FontChoice changed = Changes(shown, *chosen);
  AsOneStep(surface, [&] {
    if (changed.name) surface.SelFontName(*changed.name);
    if (changed.size) surface.SelFontSize(*changed.size);
    if (changed.bold) surface.SelBold(*changed.bold);
    if (changed.italic) surface.SelItalic(*changed.italic);
    if (changed.underline) surface.SelUnderline(*changed.underline);
    if (changed.strike) surface.SelStrikeThru(*changed.strike);
    if (changed.colour) surface.SelColor(*changed.colour);
  });
}

}  // namespace lumenote

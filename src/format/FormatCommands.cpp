#include "format/FormatCommands.h"

#include "base/Numbers.h"

namespace lumenote {

void BasculerGras(RichTextSurface& surface) { surface.SelBold(surface.SelBold() != true); }

void BasculerItalique(RichTextSurface& surface) { surface.SelItalic(surface.SelItalic() != true); }

void BasculerSouligné(RichTextSurface& surface) {
  surface.SelUnderline(surface.SelUnderline() != true);
}

void BasculerBarré(RichTextSurface& surface) {
  surface.SelStrikeThru(surface.SelStrikeThru() != true);
}

void MettreNormal(RichTextSurface& surface) {
  AsOneStep(surface, [&] {
    surface.SelBold(false);
    surface.SelItalic(false);
    surface.SelUnderline(false);
    surface.SelStrikeThru(false);
  });
}

void BasculerPuces(RichTextSurface& surface) {
  if (surface.SelBullet() != true) {
    surface.SelBullet(true);
    return;
  }
  AsOneStep(surface, [&] {
    surface.SelBullet(false);
    surface.SelHangingIndent(0);
  });
}

void DécalerRetrait(RichTextSurface& surface, int twips) {
  if (const auto indent = surface.SelIndent()) surface.SelIndent(Sum32(*indent, twips));
}

}  // namespace lumenote

#include "editor/EditCommands.h"

#include <string>

#include "editor/ContextMenu.h"
#include "forms/Form.h"

namespace lumenote {

namespace {

void Offer(Menu& entry, std::u16string caption, bool possible, UndoKind kind) {
  entry.Enabled(possible);
  if (possible) caption += u" " + std::u16string(LibelleAction(kind));
  entry.Caption(caption);
}

}  // namespace

std::u16string_view LibelleAction(UndoKind kind) {
  switch (kind) {
    case UndoKind::Unknown:
      return u"Der Action";
    case UndoKind::Typing:
      return u"Frappe";
    case UndoKind::Delete:
      return u"Suppr.";
    case UndoKind::DragDrop:
      return u"Glisser/Dépl.";
    case UndoKind::Cut:
      return u"Couper";
    case UndoKind::Paste:
      return u"Coller";
  }
  return {};
}

bool CanCutCopClr(const RichTextSurface& surface) { return surface.SelLength() >= 1; }

void DisableEntriesWithoutCommand(const Form& window) {
  for (Element* element : window.Elements()) {
    auto* entry = dynamic_cast<Menu*>(element);
    if (entry && entry->Entries().empty() && !entry->IsSeparator() && !entry->Click)
      entry->Enabled(false);
  }
}

void UpdateItems(ContextMenu& menu, const RichTextSurface& surface) {
  const bool redo = surface.CanRedo();
  Offer(menu.mnuPopUndo, u"&Annuler", surface.CanUndo() && !redo, surface.UndoType());
  Offer(menu.mnuPopRedo, u"&Rétablir", redo, surface.RedoType());
  const bool selected = CanCutCopClr(surface);
  menu.mnuPopCut.Enabled(selected);
  menu.mnuPopCopy.Enabled(selected);
  menu.mnuPopClear.Enabled(selected);
  menu.mnuPopPaste.Enabled(surface.CanPaste());
}

}  // namespace lumenote

// The document's context menu.
#pragma once
#include "forms/Menu.h"

namespace lumenote {

/// Declared in menu order.
struct ContextMenu {
  explicit ContextMenu(Form& form) : mnuPop(form, "mnuPop", u"mnuPop", false) {}

  Menu mnuPop;
  Menu mnuPopCut{mnuPop, "mnuPopCut", u"&Couper", u"Ctrl+X"};
  Menu mnuPopCopy{mnuPop, "mnuPopCopy", u"Co&pier", u"Ctrl+C"};
  Menu mnuPopPaste{mnuPop, "mnuPopPaste", u"Co&ller", u"Ctrl+V"};
  Menu mnuPopClear{mnuPop, "mnuPopClear", u"&Suppr."};
  Menu mnuPopTrait5{mnuPop, "mnuPopTrait5", u"-"};
  Menu mnuPopUndo{mnuPop, "mnuPopUndo", u"&Annuler", u"Ctrl+Z"};
  Menu mnuPopRedo{mnuPop, "mnuPopRedo", u"&Rétablir", u"Ctrl+Y"};
  Menu mnuPopTrait6{mnuPop, "mnuPopTrait6", u"-"};
  Menu mnuPopEditerAvec{mnuPop, "mnuPopEditerAvec", u"Editer avec ..."};
  Menu mnuPopQjot{mnuPopEditerAvec, "mnuPopQjot", u"&Qjot"};
  Menu mnuPopAtlantis{mnuPopEditerAvec, "mnuPopAtlantis", u"&Atlantis"};
  Menu mnuPopMSWord{mnuPopEditerAvec, "mnuPopMSWord", u"&Word"};
  Menu mnuPopOcr{mnuPop, "mnuPopOcr", u"OCR"};
  Menu mnuPopOcrReadIris{mnuPopOcr, "mnuPopOcrReadIris", u"Ouvrir ReadIris"};
  Menu mnuPopOcrFineReader7{mnuPopOcr, "mnuPopOcrFineReader7", u"FineReader 7"};
  Menu mnuPopOcrApprendre{mnuPopOcr, "mnuPopOcrApprendre", u"&Apprendre"};
  Menu mnuPopOcrNettoyer{mnuPopOcr, "mnuPopOcrNettoyer", u"&Nettoyer"};
  Menu mnuPopOcrListCorr{mnuPopOcr, "mnuPopOcrListCorr", u"Edit ListCorr"};
  Menu mnuPopOcrCollerDans{mnuPopOcr, "mnuPopOcrCollerDans", u"Coller Dans ..."};
  Menu mnuPopTrait7{mnuPop, "mnuPopTrait7", u"-"};
  Menu mnuPopConvertir{mnuPop, "mnuPopConvertir", u"Con&vertir"};
  Menu mnuPopRichTextText{mnuPopConvertir, "mnuPopRichTextText", u"&RichText --> Text"};
  Menu mnuPopTextRichText{mnuPopConvertir, "mnuPopTextRichText", u"&Text --> RichText"};
  Menu mnuPopTrait8{mnuPop, "mnuPopTrait8", u"-"};
  Menu mnuPopSupprDoc{mnuPop, "mnuPopSupprDoc", u"Suppr. Document"};
  Menu mnuPopMettreDessus{mnuPop, "mnuPopMettreDessus", u"Maintenir Dessus"};
  Menu mnuPopTrait9{mnuPop, "mnuPopTrait9", u"-"};
  Menu mnuPopEnregistrer{mnuPop, "mnuPopEnregistrer", u"&Enregistrer", u"Ctrl+S"};
  Menu mnuPopQuitter{mnuPop, "mnuPopQuitter", u"&Quitter"};
};

}  // namespace lumenote

// The menu bar.
#pragma once
#include "forms/Menu.h"

namespace lumenote {

/// Declared in menu order; leading spaces in the captions separate the menus.
class MenuBar {
  Form& form_;

 public:
  explicit MenuBar(Form& form) : form_(form) {}
  /// Shows or hides all menus of the bar.
  void Visible(bool on);

  Menu mnuEdt{form_, "mnuEdt", u"   Edt"};
  Menu mnuEdtTrouver{mnuEdt, "mnuEdtTrouver", u"Trouver", u"Ctrl+F"};
  Menu mnuEdtSuivantppp{mnuEdt, "mnuEdtSuivantppp", u"Suivant...", u"F3"};
  Menu mnuEdtSymboles{mnuEdt, "mnuEdtSymboles", u"Symboles"};
  Menu mnuEdtTrait1{mnuEdt, "mnuEdtTrait1", u"-"};
  Menu mnuEdtMajuscMinusc{mnuEdt, "mnuEdtMajuscMinusc", u"&Majuscules/Minuscules"};
  Menu mnuEdtUpperCase{mnuEdtMajuscMinusc, "mnuEdtUpperCase", u"&MAJUSCULES"};
  Menu mnuEdtLowerCase{mnuEdtMajuscMinusc, "mnuEdtLowerCase", u"m&inuscules"};
  Menu mnuEdtTitre{mnuEdtMajuscMinusc, "mnuEdtTitre", u"&Titre"};
  Menu mnuEdtIndiceExp{mnuEdt, "mnuEdtIndiceExp", u"&Indice/Exposant"};
  Menu mnuEdtSuperScript{mnuEdtIndiceExp, "mnuEdtSuperScript", u"&Exposant", u"Ctrl+Shift+P"};
  Menu mnuEdtSubScript{mnuEdtIndiceExp, "mnuEdtSubScript", u"&Indice", u"Ctrl+Shift+B"};
  Menu mnuEdtNoScript{mnuEdtIndiceExp, "mnuEdtNoScript", u"&Normal"};
  Menu mnuEdtTrait2{mnuEdt, "mnuEdtTrait2", u"-"};
  Menu mnuEdtGauche{mnuEdt, "mnuEdtGauche", u"&Gauche", u"Ctrl+L"};
  Menu mnuEdtCentre{mnuEdt, "mnuEdtCentre", u"&Centre", u"Ctrl+E"};
  Menu mnuEdtDroite{mnuEdt, "mnuEdtDroite", u"&Droite", u"Ctrl+R"};

  Menu mnuFmt{form_, "mnuFmt", u"Fmt"};
  Menu mnuFmtPolice{mnuFmt, "mnuFmtPolice", u"&Police..."};
  Menu mnuFmtParagraph{mnuFmt, "mnuFmtParagraph", u"&Paragraphe"};
  Menu mnuFmtTrait1{mnuFmt, "mnuFmtTrait1", u"-"};
  Menu mnuFmtStyStandard{mnuFmt, "mnuFmtStyStandard", u"Standard"};
  Menu mnuFmtStyle1{mnuFmt, "mnuFmtStyle1", u"Para 1"};
  Menu mnuFmtStyle2{mnuFmt, "mnuFmtStyle2", u"Para 2"};
  Menu mnuFmtStyle3{mnuFmt, "mnuFmtStyle3", u"Para 3"};
  Menu mnuFmtTrait2{mnuFmt, "mnuFmtTrait2", u"-"};
  Menu mnuFmtActRègle{mnuFmt, "mnuFmtActRègle", u"Aff &Règle"};
  Menu mnuFmtActBarMenu{mnuFmt, "mnuFmtActBarMenu", u"Aff BarreMenu"};

  Menu mnuSelect{form_, "mnuSelect", u"        Sélect"};
  Menu mnuSelMot{mnuSelect, "mnuSelMot", u"&Mot"};
  Menu mnuSelPhrase{mnuSelect, "mnuSelPhrase", u"&Phrase"};
  Menu mnuSelLigne{mnuSelect, "mnuSelLigne", u"&Ligne"};
  Menu mnuSelParagraphe{mnuSelect, "mnuSelParagraphe", u"P&aragraphe"};
  Menu mnuSelTout{mnuSelect, "mnuSelTout", u"&Tout", u"Ctrl+A"};

  Menu mnuGras{form_, "mnuGras", u"        G"};
  Menu mnuItal{form_, "mnuItal", u"I"};
  Menu mnuSoul{form_, "mnuSoul", u"S"};
  Menu mnuBarré{form_, "mnuBarré", u"B"};
  Menu mnuNorm{form_, "mnuNorm", u"N"};
  Menu mnuIdt{form_, "mnuIdt", u"         -->"};
  Menu mnuODt{form_, "mnuODt", u"<--"};
  Menu mnubulles{form_, "mnubulles", u"      Bulles"};
};

}  // namespace lumenote

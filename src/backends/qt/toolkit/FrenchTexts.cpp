#include "backends/qt/toolkit/FrenchTexts.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QGroupBox>
#include <QHash>
#include <QLabel>
#include <QTabWidget>

namespace lumenote {

namespace {

/// By the toolkit's text without its mnemonic.
const QHash<QString, QString>& FrenchTexts() {
  static const QHash<QString, QString> kTexts{
      // Buttons of any dialog.
      {QStringLiteral("OK"), QStringLiteral("OK")},
      {QStringLiteral("Cancel"), QStringLiteral("Annuler")},
      // Menus of text boxes.
      {QStringLiteral("Undo"), QStringLiteral("&Annuler")},
      {QStringLiteral("Redo"), QStringLiteral("&Rétablir")},
      {QStringLiteral("Cut"), QStringLiteral("Co&uper")},
      {QStringLiteral("Copy"), QStringLiteral("&Copier")},
      {QStringLiteral("Paste"), QStringLiteral("C&oller")},
      {QStringLiteral("Delete"), QStringLiteral("&Supprimer")},
      {QStringLiteral("Select All"), QStringLiteral("&Tout sélectionner")},
      // Fonts.
      {QStringLiteral("Font"), QStringLiteral("&Police")},
      {QStringLiteral("Font style"), QStringLiteral("St&yle")},
      {QStringLiteral("Size"), QStringLiteral("&Taille")},
      {QStringLiteral("Effects"), QStringLiteral("Effets")},
      {QStringLiteral("Strikeout"), QStringLiteral("&Barré")},
      {QStringLiteral("Underline"), QStringLiteral("&Souligné")},
      {QStringLiteral("Sample"), QStringLiteral("Exemple")},
      {QStringLiteral("Regular"), QStringLiteral("Normal")},
      {QStringLiteral("Bold"), QStringLiteral("Gras")},
      {QStringLiteral("Italic"), QStringLiteral("Italique")},
      {QStringLiteral("Bold Italic"), QStringLiteral("Gras italique")},
      {QStringLiteral("Oblique"), QStringLiteral("Oblique")},
      {QStringLiteral("Bold Oblique"), QStringLiteral("Gras oblique")},
      {QStringLiteral("Light"), QStringLiteral("Maigre")},
      {QStringLiteral("Light Italic"), QStringLiteral("Maigre italique")},
      {QStringLiteral("Medium"), QStringLiteral("Demi-gras")},
      {QStringLiteral("Medium Italic"), QStringLiteral("Demi-gras italique")},
      {QStringLiteral("Black"), QStringLiteral("Extra-gras")},
      // Colours.
      {QStringLiteral("Basic colors"), QStringLiteral("Couleurs de &base")},
      {QStringLiteral("Pick Screen Color"), QStringLiteral("&Prélever à l'écran")},
      {QStringLiteral("Custom colors"), QStringLiteral("Couleurs &personnelles")},
      {QStringLiteral("Add to Custom Colors"),
       QStringLiteral("&Ajouter aux couleurs personnelles")},
      {QStringLiteral("Hue:"), QStringLiteral("&Teinte :")},
      {QStringLiteral("Sat:"), QStringLiteral("&Saturation :")},
      {QStringLiteral("Val:"), QStringLiteral("&Luminosité :")},
      {QStringLiteral("Red:"), QStringLiteral("&Rouge :")},
      {QStringLiteral("Green:"), QStringLiteral("&Vert :")},
      {QStringLiteral("Blue:"), QStringLiteral("Bl&eu :")},
      // Printing.
      {QStringLiteral("Print"), QStringLiteral("&Imprimer")},
      {QStringLiteral("Options >>"), QStringLiteral("&Options >>")},
      {QStringLiteral("Options <<"), QStringLiteral("&Options <<")},
      {QStringLiteral("Printer"), QStringLiteral("Imprimante")},
      {QStringLiteral("Name:"), QStringLiteral("&Nom :")},
      {QStringLiteral("Properties"), QStringLiteral("P&ropriétés")},
      {QStringLiteral("Location:"), QStringLiteral("Lieu :")},
      {QStringLiteral("Preview"), QStringLiteral("Aperçu")},
      {QStringLiteral("Type:"), QStringLiteral("Type :")},
      {QStringLiteral("Output file:"), QStringLiteral("&Fichier :")},
      {QStringLiteral("Print to File (PDF)"), QStringLiteral("Fichier PDF")},
      {QStringLiteral("Local file"), QStringLiteral("Fichier local")},
      {QStringLiteral("Write PDF file"), QStringLiteral("Écrit un fichier PDF")},
      {QStringLiteral("Print To File ..."), QStringLiteral("Imprimer dans un fichier")},
      {QStringLiteral("Copies"), QStringLiteral("Copies")},
      {QStringLiteral("Options"), QStringLiteral("Options")},
      {QStringLiteral("Print range"), QStringLiteral("Pages")},
      {QStringLiteral("Print all"), QStringLiteral("&Toutes")},
      {QStringLiteral("Pages from"), QStringLiteral("Pages &de")},
      {QStringLiteral("Pages"), QStringLiteral("&Pages")},
      {QStringLiteral("to"), QStringLiteral("à")},
      {QStringLiteral("Current Page"), QStringLiteral("Page courante")},
      {QStringLiteral("Selection"), QStringLiteral("&Sélection")},
      {QStringLiteral("Page Set:"), QStringLiteral("Pages :")},
      {QStringLiteral("All Pages"), QStringLiteral("Toutes")},
      {QStringLiteral("Odd Pages"), QStringLiteral("Impaires")},
      {QStringLiteral("Even Pages"), QStringLiteral("Paires")},
      {QStringLiteral("Output Settings"), QStringLiteral("Copies")},
      {QStringLiteral("Copies:"), QStringLiteral("&Copies :")},
      {QStringLiteral("Collate"), QStringLiteral("&Assembler")},
      {QStringLiteral("Reverse"), QStringLiteral("&Dernière page d'abord")},
      {QStringLiteral("Color Mode"), QStringLiteral("Couleurs")},
      {QStringLiteral("Color"), QStringLiteral("Couleurs")},
      {QStringLiteral("Grayscale"), QStringLiteral("Niveaux de gris")},
      {QStringLiteral("Duplex Printing"), QStringLiteral("Recto verso")},
      {QStringLiteral("None"), QStringLiteral("Non")},
      {QStringLiteral("Long side"), QStringLiteral("Bord long")},
      {QStringLiteral("Short side"), QStringLiteral("Bord court")},
      {QStringLiteral("Printer Properties"), QStringLiteral("Propriétés de l'imprimante")},
      {QStringLiteral("Page"), QStringLiteral("Page")},
      {QStringLiteral("Advanced"), QStringLiteral("Avancé")},
      {QStringLiteral("Paper"), QStringLiteral("Papier")},
      {QStringLiteral("Page size:"), QStringLiteral("&Format :")},
      {QStringLiteral("Width:"), QStringLiteral("&Largeur :")},
      {QStringLiteral("Height:"), QStringLiteral("&Hauteur :")},
      {QStringLiteral("Paper source:"), QStringLiteral("&Bac :")},
      {QStringLiteral("Orientation"), QStringLiteral("Orientation")},
      {QStringLiteral("Portrait"), QStringLiteral("&Portrait")},
      {QStringLiteral("Landscape"), QStringLiteral("P&aysage")},
      {QStringLiteral("Reverse landscape"), QStringLiteral("Paysage inversé")},
      {QStringLiteral("Reverse portrait"), QStringLiteral("Portrait inversé")},
      {QStringLiteral("Margins"), QStringLiteral("Marges")},
      {QStringLiteral("Page Layout"), QStringLiteral("Mise en page")},
      {QStringLiteral("Page order:"), QStringLiteral("Ordre des pages :")},
      {QStringLiteral("Pages per sheet:"), QStringLiteral("Pages par feuille :")},
      {QStringLiteral("Custom"), QStringLiteral("Personnalisé")},
      {QStringLiteral("Millimeters (mm)"), QStringLiteral("Millimètres (mm)")},
      {QStringLiteral("Inches (in)"), QStringLiteral("Pouces (in)")},
      {QStringLiteral("Points (pt)"), QStringLiteral("Points (pt)")},
      {QStringLiteral("Yes"), QStringLiteral("&Oui")},
      {QStringLiteral("No"), QStringLiteral("&Non")},
  };
  return kTexts;
}

}  // namespace

QString InFrench(const QString& text) {
  QString plain = text;
  plain.remove(QLatin1Char('&'));
  return FrenchTexts().value(plain, text);
}

void ShowInFrench(const QMenu& menu) {
  for (QAction* entry : menu.actions()) {
    const QString label = entry->text().section(QLatin1Char('\t'), 0, 0);
    entry->setText(InFrench(label) + entry->text().mid(label.size()));
  }
}

void ShowInFrench(const QWidget& dialog) {
  for (auto* label : dialog.findChildren<QLabel*>()) label->setText(InFrench(label->text()));
  for (auto* button : dialog.findChildren<QAbstractButton*>())
    button->setText(InFrench(button->text()));
  for (auto* frame : dialog.findChildren<QGroupBox*>()) frame->setTitle(InFrench(frame->title()));
  for (auto* tabs : dialog.findChildren<QTabWidget*>())
    for (int i = 0; i < tabs->count(); ++i) tabs->setTabText(i, InFrench(tabs->tabText(i)));
  for (auto* list : dialog.findChildren<QComboBox*>())
    for (int i = 0; i < list->count(); ++i) list->setItemText(i, InFrench(list->itemText(i)));
}

}  // namespace lumenote

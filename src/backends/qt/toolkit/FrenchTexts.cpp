#include "backends/qt/toolkit/FrenchTexts.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QGroupBox>
#include <QHash>
#include <QLabel>
#include <QTabWidget>
#include <optional>
#include <vector>

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
      {QStringLiteral("Invalid Pages Definition"), QStringLiteral("Pages incorrectes")},
      {QStringLiteral("Yes"), QStringLiteral("&Oui")},
      {QStringLiteral("No"), QStringLiteral("&Non")},
  };
  return kTexts;
}

/// A text about a file or about pages that the user typed, which %1 stands for.
struct Sentence {
  QString toolkits;
  QString french;
};
const std::vector<Sentence>& FrenchSentences() {
  static const std::vector<Sentence> kSentences{
      {QStringLiteral("%1 already exists.\nDo you want to overwrite it?"),
       QStringLiteral("%1 existe déjà.\nFaut-il le remplacer ?")},
      {QStringLiteral("%1 is a directory.\nPlease choose a different file name."),
       QStringLiteral("%1 est un dossier.\nChoisissez un autre nom de fichier.")},
      {QStringLiteral("File %1 is not writable.\nPlease choose a different file name."),
       QStringLiteral("Le fichier %1 est protégé.\nChoisissez un autre nom de fichier.")},
      {QStringLiteral("%1 does not follow the correct syntax. Please use ',' to separate ranges "
                      "and pages, '-' to define ranges and make sure ranges do not intersect with "
                      "each other."),
       QStringLiteral("« %1 » n'est pas une liste de pages. Séparez les pages et les suites de "
                      "pages par « , », comme 1,3-5, sans en répéter une.")},
  };
  return kSentences;
}

/// What %1 stands for in a text; nothing if it is another sentence.
std::optional<QString> NameIn(const QString& text, const QString& sentence) {
  const QStringList around = sentence.split(QStringLiteral("%1"));
  const auto length = text.size() - around[0].size() - around[1].size();
  if (length < 0 || !text.startsWith(around[0]) || !text.endsWith(around[1])) return std::nullopt;
  return text.mid(around[0].size(), length);
}

}  // namespace

QString InFrench(const QString& text) {
  for (const Sentence& sentence : FrenchSentences())
    if (const auto name = NameIn(text, sentence.toolkits)) return sentence.french.arg(*name);
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

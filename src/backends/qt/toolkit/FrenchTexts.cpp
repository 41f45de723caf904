#include "backends/qt/toolkit/FrenchTexts.h"

#include <QAbstractButton>
#include <QGroupBox>
#include <QHash>
#include <QLabel>

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
}

}  // namespace lumenote

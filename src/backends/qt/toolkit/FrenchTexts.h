// French for the toolkit's own dialogs, whatever the language of the host's application.
#pragma once
#include <QMenu>
#include <QString>
#include <QWidget>

namespace lumenote {

/// The French for one of the toolkit's texts, with or without its mnemonic; any other text as it
/// is.
QString InFrench(const QString& text);

/// Puts the entries of a menu into French; shortcuts stay.
void ShowInFrench(const QMenu& menu);
/// Puts the labels, buttons, frames, tabs and lists of a dialog into French.
void ShowInFrench(const QWidget& dialog);

}  // namespace lumenote

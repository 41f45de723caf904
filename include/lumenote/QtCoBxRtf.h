// The control for hosts with Qt of their own: texts are QStrings, the host's window a QWidget.
#pragma once
#include <QString>
#include <QWidget>
#include <string>

#include "lumenote/CoBxRtf.h"
#include "lumenote/QtPlatform.h"

namespace lumenote {

/// Each member does what its namesake in `CoBxRtf` does; those take `u"..."` as well.
class QtCoBxRtf final : public CoBxRtf {
 public:
  using CoBxRtf::CoBxRtf;
  using CoBxRtf::HostWindow;
  using CoBxRtf::NotePath;
  using CoBxRtf::NoteText;
  using CoBxRtf::pAttribut;
  using CoBxRtf::pChmAppli;
  using CoBxRtf::pCouleurFen;
  using CoBxRtf::pModelWord;
  using CoBxRtf::pNomAppli;
  using CoBxRtf::pSScléReg;
  using CoBxRtf::pStrOrchm;
  using CoBxRtf::pTitreCadre;
  using CoBxRtf::pTitreFenêtre;

  /// The same for a QString.
  /// @{
  void pNomAppli(const QString& name) { CoBxRtf::pNomAppli(name.toStdU16String()); }
  void pChmAppli(const QString& path) { CoBxRtf::pChmAppli(path.toStdU16String()); }
  void pTitreFenêtre(const QString& title) { CoBxRtf::pTitreFenêtre(title.toStdU16String()); }
  void pTitreCadre(const QString& title) { CoBxRtf::pTitreCadre(title.toStdU16String()); }
  void pCouleurFen(const QString& number) { CoBxRtf::pCouleurFen(number.toStdU16String()); }
  void pSScléReg(const QString& section) { CoBxRtf::pSScléReg(section.toStdU16String()); }
  void pAttribut(const QString& access) { CoBxRtf::pAttribut(access.toStdU16String()); }
  void pModelWord(const QString& path) { CoBxRtf::pModelWord(path.toStdU16String()); }
  void pStrOrchm(const QString& noteOrPath) { CoBxRtf::pStrOrchm(noteOrPath.toStdU16String()); }
  void NoteText(const QString& note) { CoBxRtf::NoteText(note.toStdU16String()); }
  void NotePath(const QString& path) { CoBxRtf::NotePath(path.toStdU16String()); }
  /// @}

  /// Reads as a QString.
  QString pStrOrchm() { return QString::fromStdU16String(CoBxRtf::pStrOrchm()); }

  /// Editors opened from now on stay above the window that the widget is in.
  void HostWindow(const QWidget& widget) { CoBxRtf::HostWindow(widget.window()->winId()); }
};

}  // namespace lumenote

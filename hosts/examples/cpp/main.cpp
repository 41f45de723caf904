// A minimal host: edits one taxon's note and prints the result. With an argument it opens the
// editor and closes it at once, as a self-check.
#include <QApplication>
#include <iostream>
#include <lumenote/QtCoBxRtf.h>

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  lumenote::QtPlatform platform;
  lumenote::QtCoBxRtf control(platform);
  control.pNomAppli(u"Herbier");
  control.pTitreFenêtre(u"Orchis purpurea Huds.");
  control.pTitreCadre(u"Remarques");
  control.pCouleurFen(u"14737632");
  control.pSScléReg(u"Taxons");
  control.pStrOrchm(u"Lisière sur calcaire, alt. 420 m.");
  try {
    const bool wait = argc == 1;
    control.ShowMicroEdit(wait ? 1 : 0);
    std::cout << control.pStrOrchm().toStdString() << "\n";
  } catch (const lumenote::RuntimeError& error) {
    std::cerr << error.what() << "\n";
    return 1;
  }
}

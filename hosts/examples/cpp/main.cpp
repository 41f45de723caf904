// A minimal host: edits one taxon's note and prints the result. With an argument it opens the
// editor and closes it at once, as a self-check.
#include <QApplication>
#include <iostream>
#include <lumenote/CoBxRtf.h>
#include <lumenote/QtPlatform.h>
#include <lumenote/Utf8.h>

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  lumenote::QtPlatform platform;
  lumenote::CoBxRtf control(platform);
  control.pNomAppli(u"Herbier");
  control.pTitreFenêtre(u"Orchis purpurea Huds.");
  control.pTitreCadre(u"Remarques");
  control.pCouleurFen(u"14737632");
  control.pSScléReg(u"Taxons");
  control.pStrOrchm(u"Lisière sur calcaire, alt. 420 m.");
  try {
    const bool wait = argc == 1;
    control.ShowMicroEdit(wait ? 1 : 0);
    std::cout << lumenote::ToUtf8(control.pStrOrchm()) << "\n";
  } catch (const lumenote::RuntimeError& error) {
    std::cerr << error.what() << "\n";
    return 1;
  }
}

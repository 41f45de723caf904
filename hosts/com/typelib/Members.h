// The members of CoBxRtf as COM hosts see them: the one table that interface, object and type
// library are made of.
#pragma once

// Rows: dispatch identifier, name, help text. Write: a string property that is written; Read: the
// reading of one; Method: a method with one optional 32-bit integer. Hosts are compiled against
// identifiers and order: change neither, add new rows at the end.
#define LUMENOTE_MEMBERS(Write, Read, Method)                                                     \
  Write(1, pNomAppli, L"Nom de l'application, sous lequel ses styles sont gardés")                \
      Write(2, pChmAppli, L"Chemin de l'application ; la liste de corrections est à côté")        \
          Write(3, pStrOrchm, L"La note, ou le chemin complet de son fichier")                    \
              Read(3, pStrOrchm, L"Ferme l'éditeur et rend la note, ou le chemin de son fichier") \
                  Write(4, pTitreFenêtre, L"Titre de la fenêtre")                                 \
                      Write(5, pTitreCadre, L"Titre du cadre autour de la note")                  \
                          Write(6, pCouleurFen, L"Couleur de la fenêtre, nombre décimal") Write(  \
                              7, pSScléReg, L"Nom sous lequel la place de la fenêtre est gardée") \
                              Write(8, pAttribut,                                                 \
                                    L"readonly ou lectureseule : la note ne sera pas modifiée")   \
                                  Write(9, pModelWord, L"Modèle pour le traitement de texte")     \
                                      Method(10, ShowMicroEdit,                                   \
                                             L"Ouvre l'éditeur ; avec 1, attend qu'il soit fermé")

#include "editor/MenuBar.h"

namespace lumenote {

void MenuBar::Visible(bool on) {
  for (Menu* menu : {&mnuEdt, &mnuFmt, &mnuSelect, &mnuGras, &mnuItal, &mnuSoul, &mnuBarré,
                     &mnuNorm, &mnuIdt, &mnuODt, &mnubulles})
    menu->Visible(on);
}

}  // namespace lumenote

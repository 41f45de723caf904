#include "editor/Dessus.h"

#include "forms/Backend.h"
#include "forms/Form.h"
#include "forms/Menu.h"
#include "lumenote/Platform.h"
#include "session/Session.h"

namespace lumenote {

void Dessus::Marquer(bool on) {
  session_.onTop = on;
  entry_.Checked(on);
}

void Dessus::Suspendre() {
  window_.OnTop(false);
  Marquer(false);
}

void Dessus::Retablir() {
  if (session_.onTop) window_.OnTop(true);
  Marquer(true);
}

void Dessus::Basculer() {
  Marquer(!session_.onTop);
  window_.OnTop(session_.onTop);
}

void Dessus::Relire() { Marquer(window_.Machine().Windows().IsTopmost(window_)); }

}  // namespace lumenote

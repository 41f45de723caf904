/* A host in C: edits a note and prints it.   usage: c_host NOTE_FILE */
#include <lumenote/lumenote.h>
#include <stdio.h>

static int fail(LumenoteControl* control) {
  const LumenoteError* error = lumenote_last_error();
  fprintf(stderr, "%s : %s (%d)\n", error->member, error->text, error->number);
  lumenote_destroy(control);
  return 1;
}

int main(int argc, char** argv) {
  if (argc != 2) return 2;
  LumenoteControl* control = lumenote_create();
  if (!control) return fail(control);
  lumenote_set(control, "pNomAppli", "Herbier");
  lumenote_set(control, "pTitreFenêtre", "Orchis purpurea Huds.");
  lumenote_set(control, "pTitreCadre", "Remarques");
  lumenote_set(control, "pCouleurFen", "14737632");
  const char* path = lumenote_drive_path(argv[1]);
  if (!path || lumenote_set(control, "NotePath", path)) return fail(control);
  if (lumenote_show(control, 1)) return fail(control); /* until its user closes it */
  const char* kept = lumenote_get(control, "pStrOrchm");
  if (!kept) return fail(control);
  puts(*kept ? kept : "(deleted)");
  lumenote_destroy(control);
  return 0;
}

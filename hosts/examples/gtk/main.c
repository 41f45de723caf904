/* A host on GTK: a button opens the editor over the host's window, which goes on working; when the
 * editor closes, the note stands under the button. */
#include <gtk/gtk.h>
#include <gtk/gtkx.h>
#include <lumenote/lumenote.h>

typedef struct Host {
  GtkWidget* window;
  GtkWidget* note;
  LumenoteControl* control;
} Host;

/* Between the events of its own loop the host lets the editor have its own. */
static gboolean pump(gpointer unused) {
  (void)unused;
  lumenote_pump(0);
  return G_SOURCE_CONTINUE;
}

static void closed(LumenoteControl* control, void* data) {
  Host* host = data;
  const char* note = lumenote_get(control, "pStrOrchm");
  if (note) gtk_label_set_text(GTK_LABEL(host->note), note);
}

static void edit(GtkButton* button, gpointer data) {
  Host* host = data;
  (void)button;
  lumenote_host_window(host->control, GDK_WINDOW_XID(gtk_widget_get_window(host->window)));
  if (lumenote_show(host->control, 0))
    gtk_label_set_text(GTK_LABEL(host->note), lumenote_last_error()->text);
}

int main(int argc, char** argv) {
  gtk_init(&argc, &argv);
  Host host = {gtk_window_new(GTK_WINDOW_TOPLEVEL), gtk_label_new(NULL), lumenote_create()};
  if (!host.control) return 1;
  lumenote_set(host.control, "pTitreFenêtre", "Orchis purpurea Huds.");
  lumenote_set(host.control, "pTitreCadre", "Remarques");
  lumenote_set(host.control, "pCouleurFen", "14737632");
  lumenote_set(host.control, "NoteText", "Lisière sur calcaire");
  lumenote_closed(host.control, closed, &host);

  GtkWidget* button = gtk_button_new_with_label("Remarques…");
  GtkWidget* column = gtk_box_new(GTK_ORIENTATION_VERTICAL, 6);
  gtk_container_add(GTK_CONTAINER(column), button);
  gtk_container_add(GTK_CONTAINER(column), host.note);
  gtk_container_add(GTK_CONTAINER(host.window), column);
  gtk_window_set_title(GTK_WINDOW(host.window), "Herbier");
  gtk_window_set_default_size(GTK_WINDOW(host.window), 320, 120);
  g_signal_connect(button, "clicked", G_CALLBACK(edit), &host);
  g_signal_connect(host.window, "destroy", G_CALLBACK(gtk_main_quit), NULL);
  gtk_widget_show_all(host.window);
  g_timeout_add(20, pump, NULL);
  gtk_main();
  lumenote_destroy(host.control);
  return 0;
}

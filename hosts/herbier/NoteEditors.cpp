#include "NoteEditors.h"

#include <QMessageBox>
#include <utility>

NoteEditors::NoteEditors(Database& base, const QString& folder, QWidget& window,
                         std::function<void(qint64)> stored)
    : base_(base), program_(folder + "/herbier"), window_(window), stored_(std::move(stored)) {}

void NoteEditors::Open(qint64 id) {
  Editor& editor = EditorOf(id);
  const Database::Record record = base_.Read(id);
  editor.control.pTitreFenêtre(record.name);
  if (!editor.open) {
    editor.note = record.note;
    editor.control.NoteText(record.note);
  }
  editor.control.ShowMicroEdit();
  editor.open = true;
}

void NoteEditors::Close() {
  for (auto& [id, editor] : editors_) editor.control.pStrOrchm();
}

NoteEditors::Editor& NoteEditors::EditorOf(qint64 id) {
  if (const auto found = editors_.find(id); found != editors_.end()) return found->second;
  Editor& editor = editors_.try_emplace(id, platform_).first->second;
  editor.control.pNomAppli(u"Herbier");
  editor.control.pTitreCadre(u"Remarques");
  editor.control.pCouleurFen(u"-1");
  editor.control.pSScléReg(u"Herbier");
  editor.control.pChmAppli(platform_.ToDrivePath(program_.toStdString()));
  editor.control.HostWindow(window_);
  editor.control.Closed([this, id] { Store(id); });
  return editor;
}

// A note that the database does not take stays in its editor.
void NoteEditors::Store(qint64 id) {
  Editor& editor = editors_.at(id);
  editor.open = false;
  const QString now = editor.control.pStrOrchm();
  if (now == editor.note) return;
  try {
    base_.Store(id, now);
    stored_(id);
  } catch (const DatabaseError& error) {
    QMessageBox::critical(&window_, "Remarque",
                          QString("La remarque n'a pu être rangée : %1").arg(error.what()));
    editor.control.NoteText(now);
    editor.control.ShowMicroEdit();
    editor.open = true;
  }
}

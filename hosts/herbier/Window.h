// The herbarium's window: the taxa, a search, the way to their notes.
#pragma once
#include <QSqlTableModel>
#include <QTableView>
#include <QWidget>

#include "Database.h"
#include "NoteEditors.h"
#include "TaxonFilter.h"

class Window : public QWidget {
 public:
  /// The correction list lies in `folder`.
  Window(Database& base, const QString& folder);

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  void Load();
  void Add();
  void OpenCurrent();
  void ShowTable();
  /// That of the table in the database, not of the sorted one that is shown.
  int RowOf(qint64 id) const;

  Database& base_;
  QSqlTableModel taxa_;
  TaxonFilter found_;
  QTableView table_;
  NoteEditors notes_;
};

#include "Database.h"

#include <QFile>
#include <QSqlError>
#include <QSqlQuery>
#include <QTextStream>
#include <QVariantList>
#include <lumenote/Note.h>

namespace {

/// Runs a statement with its values in place of the question marks.
QSqlQuery Run(const QSqlDatabase& base, const QString& statement, const QVariantList& values = {}) {
  QSqlQuery query(base);
  const bool prepared = query.prepare(statement);
  for (const QVariant& value : values) query.addBindValue(value);
  if (!prepared || !query.exec()) throw DatabaseError(query.lastError().text());
  return query;
}

/// Undone unless it is committed.
class Transaction {
 public:
  explicit Transaction(QSqlDatabase& base) : base_(base) {
    if (!base_.transaction()) throw DatabaseError(base_.lastError().text());
  }
  ~Transaction() {
    if (!committed_) base_.rollback();
  }
  void Commit() {
    committed_ = base_.commit();
    if (!committed_) throw DatabaseError(base_.lastError().text());
  }

 private:
  QSqlDatabase& base_;
  bool committed_ = false;
};

QString TextOf(const QString& note) {
  const lumenote::Note read(note.toStdString());
  return QString::fromStdU16String(read.Text());
}

}  // namespace

Database::Database(const QString& path) : base_(QSqlDatabase::addDatabase("QSQLITE")) {
  base_.setDatabaseName(path);
  if (!base_.open()) throw DatabaseError(base_.lastError().text());
  if (!base_.tables().contains("taxon")) Fill();
}

Database::Record Database::Read(qint64 id) const {
  QSqlQuery found = Run(base_, "SELECT genre, espèce, auteur, note FROM taxon WHERE id = ?", {id});
  if (!found.next()) throw DatabaseError("fiche introuvable");
  const auto field = [&](int column) { return found.value(column).toString(); };
  return {QString("%1 %2 %3").arg(field(0), field(1), field(2)).trimmed(), field(3)};
}

void Database::Store(qint64 id, const QString& note) {
  Transaction change(base_);
  Run(base_,
      "INSERT INTO taxon (id, note, texte) VALUES (?, ?, ?) "
      "ON CONFLICT (id) DO UPDATE SET note = excluded.note, texte = excluded.texte",
      {id, note, TextOf(note)});
  change.Commit();
}

qint64 Database::Add() {
  return Run(base_, "INSERT INTO taxon DEFAULT VALUES").lastInsertId().toLongLong();
}

// A note may come back after its taxon was deleted: no other taxon gets that number.
void Database::Fill() {
  Transaction change(base_);
  Run(base_,
      "CREATE TABLE taxon (id INTEGER PRIMARY KEY AUTOINCREMENT, "
      "famille TEXT NOT NULL DEFAULT '', "
      "genre TEXT NOT NULL DEFAULT '', espèce TEXT NOT NULL DEFAULT '', "
      "auteur TEXT NOT NULL DEFAULT '', lieu TEXT NOT NULL DEFAULT '', "
      "date TEXT NOT NULL DEFAULT '', note TEXT NOT NULL DEFAULT '', "
      "texte TEXT NOT NULL DEFAULT '')");
  QFile file(":/taxons.tsv");
  file.open(QIODevice::ReadOnly);
  QTextStream lines(&file);
  while (!lines.atEnd()) {
    const QStringList fields = lines.readLine().split('\t');
    QVariantList values(fields.begin(), fields.end());
    values << TextOf(fields.last());  // the note comes last
    Run(base_, "INSERT INTO taxon VALUES (NULL, ?, ?, ?, ?, ?, ?, ?, ?)", values);
  }
  change.Commit();
}

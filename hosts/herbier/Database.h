// The herbarium's records in an SQLite database.
#pragma once
#include <QSqlDatabase>
#include <QString>
#include <stdexcept>

/// What the database refused, in its own words.
class DatabaseError : public std::runtime_error {
 public:
  explicit DatabaseError(const QString& what) : std::runtime_error(what.toStdString()) {}
};

/// The columns of the table "taxon". `Text` is what the note says without its formats, for
/// searches.
enum class Column { Id, Family, Genus, Species, Author, Place, Date, Note, Text };

class Database {
 public:
  /// Opens the file, or creates it with a few taxa of France. Raises DatabaseError.
  explicit Database(const QString& path);

  struct Record {
    QString name;  // genus, species and author
    QString note;
  };
  Record Read(qint64 id) const;

  /// Stores a note with what it says, both or neither; in a new record if its own was deleted
  /// meanwhile. Raises DatabaseError.
  void Store(qint64 id, const QString& note);
  /// Returns the number of an empty record. Raises DatabaseError.
  qint64 Add();

 private:
  void Fill();

  QSqlDatabase base_;
};

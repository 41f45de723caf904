// The editors on the records' notes.
#pragma once
#include <QString>
#include <functional>
#include <lumenote/QtCoBxRtf.h>
#include <map>
#include <memory>

#include "Database.h"

class QWidget;

/// One editor a record; several may be open. A note is stored when its editor closes.
class NoteEditors {
 public:
  /// The correction list for scanned notes lies in `folder`. `stored` is called with the record
  /// of each note that has changed.
  NoteEditors(Database& base, const QString& folder, QWidget& window,
              std::function<void(qint64)> stored);

  /// Opens the editor on a record's note, or brings it to the front.
  void Open(qint64 id);
  /// Closes all editors; each may ask whether to save.
  void Close();

 private:
  struct Editor {
    explicit Editor(lumenote::Platform& platform) : control(platform) {}

    lumenote::QtCoBxRtf control;
    QString note;  // as it is in the database
    bool open = false;
  };

  Editor& EditorOf(qint64 id);
  void Store(qint64 id);

  Database& base_;
  QString program_;
  QWidget& window_;
  std::function<void(qint64)> stored_;
  lumenote::QtPlatform platform_;
  std::map<qint64, Editor> editors_;
};

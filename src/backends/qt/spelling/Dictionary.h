// The French dictionary of the system.
#pragma once
#include <QString>
#include <QStringDecoder>
#include <QStringEncoder>
#include <QStringList>
#include <hunspell/hunspell.hxx>
#include <optional>

namespace lumenote {

/// Loading one takes a fifth of a second, and suggestions up to that: for a thread of its own.
class Dictionary {
 public:
  /// The one in a folder of the environment's DICPATH, or else of the system; empty if none is
  /// installed.
  static std::optional<QString> Installed();
  /// `path` is that of the affix file.
  explicit Dictionary(const QString& path);

  bool Knows(const QString& word);
  /// Best first.
  QStringList Suggestions(const QString& word);

 private:
  std::string Encoded(const QString& word) { return QByteArray(encode_(word)).toStdString(); }

  Hunspell words_;
  QStringEncoder encode_;
  QStringDecoder decode_;
};

}  // namespace lumenote

#include "backends/qt/spelling/Dictionary.h"

#include <QDir>
#include <QFile>
#include <QStandardPaths>

namespace lumenote {

namespace {

QStringList Folders() {
  QStringList folders =
      qEnvironmentVariable("DICPATH").split(QDir::listSeparator(), Qt::SkipEmptyParts);
  for (const char* name : {"hunspell", "myspell/dicts"})
    folders +=
        QStandardPaths::locateAll(QStandardPaths::GenericDataLocation, QString::fromLatin1(name),
                                  QStandardPaths::LocateDirectory);
  return folders;
}

QString WordsOf(QString affixes) {
  return affixes.replace(QStringLiteral(".aff"), QStringLiteral(".dic"));
}

}  // namespace

std::optional<QString> Dictionary::Installed() {
  for (const QString& folder : Folders())
    for (const char* name : {"fr_FR.aff", "fr.aff"}) {
      const QString path = folder + QLatin1Char('/') + QLatin1String(name);
      if (QFile::exists(path) && QFile::exists(WordsOf(path))) return path;
    }
  return std::nullopt;
}

Dictionary::Dictionary(const QString& path)
    : words_(QFile::encodeName(path).constData(), QFile::encodeName(WordsOf(path)).constData()),
      encode_(words_.get_dict_encoding().c_str()),
      decode_(words_.get_dict_encoding().c_str()) {}

// A dictionary in an encoding that Qt does not know finds no fault.
bool Dictionary::Knows(const QString& word) {
  if (!encode_.isValid()) return true;
  encode_.resetState();
  const std::string bytes = Encoded(word);
  return encode_.hasError() || words_.spell(bytes);
}

QStringList Dictionary::Suggestions(const QString& word) {
  QStringList found;
  for (const std::string& bytes : words_.suggest(Encoded(word)))
    found += QString(decode_(QByteArray::fromStdString(bytes)));
  return found;
}

}  // namespace lumenote

// Converts between Qt's strings and the forms'.
#pragma once
#include <QString>
#include <string>
#include <string_view>

#include "base/Strings.h"

namespace lumenote {

inline QString ToQString(std::u16string_view text) {
  return QString(reinterpret_cast<const QChar*>(text.data()), static_cast<qsizetype>(text.size()));
}

inline std::u16string FromQString(QStringView text) {
  return {text.utf16(), static_cast<std::size_t>(text.size())};
}

/// Valid as long as `text` is.
inline std::u16string_view Utf16(const QString& text) {
  return {reinterpret_cast<const char16_t*>(text.utf16()), static_cast<std::size_t>(text.size())};
}

/// Text for a widget: each CR LF becomes LF.
inline QString ToLines(std::u16string_view text) {
  return ToQString(ReplaceEvery(text, u"\r\n", u"\n"));
}

}  // namespace lumenote

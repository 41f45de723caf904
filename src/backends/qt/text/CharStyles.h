// Character formats as Qt draws them.
#pragma once
#include <QColor>
#include <QTextCharFormat>
#include <optional>
#include <unordered_map>

#include "document/Document.h"
#include "view/layout/CharLook.h"

namespace lumenote {

/// A character format at one zoom.
struct CharStyle : CharLook {
  QTextCharFormat format;                      // font, colours, raise
  std::optional<QTextCharFormat> smallLetter;  // the look of small letters shown as small capitals
};

/// What makes a stand-in in text of that format invisible and `width` pixels wide.
QTextCharFormat StandInFormat(const QTextCharFormat& text, char16_t shown, double width);

/// The styles of a document's formats, created on demand.
class CharStyles {
 public:
  /// Valid until the next call of any member.
  const CharStyle& Of(const Document& document, CharId id);
  /// The style of a format that no text need have.
  const CharStyle& Of(const Document& document, const CharFormat& format);

  double Zoom() const { return zoom_; }
  void Zoom(double factor);
  /// The background colour; text colours with too little contrast are lightened or darkened.
  void Ground(const QColor& colour);

  /// The device that fonts are measured with, so that a point is 4/3 pixels on every screen.
  static QPaintDevice* Device();

 private:
  CharStyle Make(const Document& document, const CharFormat& format) const;
  void Forget();

  std::unordered_map<CharId, CharStyle> styles_;
  CharFormat lastFormat_;  // the last one requested directly
  std::optional<CharStyle> lastStyle_;
  double zoom_ = 1;
  Colour ground_ = 0xFFFFFF;
};

}  // namespace lumenote

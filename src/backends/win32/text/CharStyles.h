// Character formats as GDI draws them.
#pragma once
#include <memory>
#include <optional>
#include <unordered_map>

#include "backends/win32/text/GdiFonts.h"
#include "document/Document.h"
#include "view/layout/CharLook.h"

namespace lumenote {

/// A character format at one zoom; lengths in pixels.
struct CharStyle : CharLook {
  std::shared_ptr<const GdiFont> font;
  std::shared_ptr<const GdiFont> reduced;  // of small letters shown as small capitals
  int spacing = 0;                         // added to each character

  const std::shared_ptr<const GdiFont>& FontOf(bool isReduced) const {
    return isReduced && reduced ? reduced : font;
  }
};

/// The styles of a document's formats, created on demand.
class CharStyles {
 public:
  /// Valid until the next call of any member.
  const CharStyle& Of(const Document& document, CharId id);
  /// The style of a format that no text need have.
  const CharStyle& Of(const Document& document, const CharFormat& format);
  GdiFonts& Fonts() { return fonts_; }

  /// Pixels of the device, for one of 96 dots per inch without zoom.
  void Zoom(double factor);
  /// The background colour; text colours with too little contrast are lightened.
  void Ground(Colour colour);

 private:
  CharStyle Make(const Document& document, const CharFormat& format);
  void Forget();

  GdiFonts fonts_;
  std::unordered_map<CharId, CharStyle> styles_;
  CharFormat lastFormat_;  // the last one requested directly
  std::optional<CharStyle> lastStyle_;
  double pixels_ = 1;  // of the device, for one of 96 dots per inch, zoomed
  Colour ground_ = 0xFFFFFF;
};

}  // namespace lumenote

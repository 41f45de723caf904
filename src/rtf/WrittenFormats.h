// The formats of a text in the terms in which they are written.
#pragma once
#include <cstdint>
#include <string>
#include <unordered_map>
#include <vector>

#include "document/Document.h"
#include "rtf/Output.h"

namespace lumenote {

/// A character format as the words of RTF can tell it: two formats that are written alike are
/// equal here. The fields are the words' own numbers.
struct WrittenFormat {
  int font = -1;  // -1 and size 0: not yet told
  int size = 0;
  int colour = 0;     // in the colour table, 0 automatic
  int highlight = 0;  // likewise
  int halfPoints = 0;
  int language = 0;
  int spacing = 0;
  int scale = 100;
  std::uint16_t effects = 0;
  Underline underline = Underline::None;
  bool operator==(const WrittenFormat&) const = default;
};

/// Font table, colour table and character formats of a text, numbered as they first occur.
class WrittenFormats {
 public:
  explicit WrittenFormats(const FormatTables& tables);

  /// Takes in a format that the text uses.
  void Use(CharId format);
  /// Takes in the font of bullets.
  void UseBullets();

  /// A format that was taken in.
  const WrittenFormat& operator[](CharId format) const { return written_[format]; }
  const FontFace& Face(int font) const { return fonts_[static_cast<std::uint32_t>(font)]; }
  int BulletFont() const { return bulletFont_; }

  void WriteFontTable(Output& out) const;
  /// Nothing when no colour is used.
  void WriteColourTable(Output& out) const;

 private:
  WrittenFormat Written(const CharFormat& format);
  int ColourNumber(Colour colour);

  const FormatTables& tables_;
  std::vector<WrittenFormat> written_;  // by CharId; font -1 where not used
  InternTable<FontFace> fonts_;
  std::vector<Colour> colours_;
  std::unordered_map<Colour, int> colourNumbers_;
  int bulletFont_ = -1;
};

/// Writes the words that lead from one character format to another.
void WriteChange(const WrittenFormat& from, const WrittenFormat& to, Output& out);
/// The words of a paragraph format behind \pard, its bullet excepted.
std::string ParagraphWords(const ParaFormat& format, const TabStops& tabs);

}  // namespace lumenote

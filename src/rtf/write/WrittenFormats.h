// The formats of a text as RTF expresses them.
#pragma once
#include <array>
#include <cstdint>
#include <iterator>
#include <string>
#include <unordered_map>
#include <vector>

#include "document/Document.h"
#include "rtf/words/CharacterWords.h"
#include "rtf/write/Output.h"

namespace lumenote {

/// The numbers of `kNumberWords`; those of colours are their places in the table, `kUnstated` for
/// text that states none and 0 for no background.
inline constexpr std::int32_t kUnstated = -1;
using WrittenNumbers = std::array<std::int32_t, std::size(kNumberWords)>;
inline constexpr WrittenNumbers kDefaultNumbers = [] {
  WrittenNumbers numbers{};
  for (std::size_t i = 0; i < numbers.size(); ++i) {
    const NumberWord& word = kNumberWords[i];
    if (word.kind == NumberWord::Kind::Number)
      numbers[i] = static_cast<std::int32_t>(word.get(CharFormat()));
    else if (word.kind == NumberWord::Kind::Colour)
      numbers[i] = kUnstated;
  }
  return numbers;
}();

/// A character format in the values of RTF's control words; formats that are written alike compare
/// equal.
struct WrittenFormat {
  int font = -1;  // -1 and size 0: not stated
  int size = 0;
  int halfPoints = 0;
  WrittenNumbers numbers = kDefaultNumbers;
  std::uint16_t effects = 0;
  Underline underline = Underline::None;
  Encoding encoding = Encoding::Windows;  // that of the font
  WordsId words = 0;
  Reset reset = Reset::None;
  Spelling spelling = Spelling::Usual;
  std::uint8_t reserved[2] = {};
  bool operator==(const WrittenFormat&) const = default;
};

/// The font table, colour table and character formats of a text. Fonts, and colours that kept
/// content names, keep their numbers from the head of the note's source; others are appended in
/// order of first use.
class WrittenFormats {
 public:
  /// The tables may grow meanwhile, but only formats that they contain now can be used. A \plain
  /// directly behind text is only repeated where `resets` says so.
  WrittenFormats(const FormatTables& tables, HeadId head, bool resets);

  /// Registers a format that the text uses.
  void Use(CharId format) {
    if (numbers_[format] == 0)
      numbers_[format] = written_.Intern(Written(tables_.characters[format])) + 1;
  }
  /// Registers the font of bullets.
  void UseBullets();

  /// A registered format.
  const WrittenFormat& operator[](CharId format) const { return written_[numbers_[format] - 1]; }
  /// -1: none.
  int DefaultFont() const { return defaultFont_; }
  int BulletFont() const { return bulletFont_; }

  void WriteFontTable(Output& out) const;
  // Each writes nothing if the table is empty.
  void WriteColourTable(Output& out) const;

 private:
  const KeptHead& Head() const { return tables_.heads[head_]; }
  WrittenFormat Written(const CharFormat& format);
  bool Resets(Reset reset) const;
  void SetFont(const CharFormat& format, WrittenFormat& written);
  struct Font {
    int number = 0;
    Encoding encoding = Encoding::Windows;
    bool used = false;
    bool added = false;  // to the tables of the source
  };

  void AddFonts();
  void AddColours();
  void AddColour(std::size_t place);
  void UseDefault(Font& font);
  void UseFontZero();
  int NextFont();
  const Font& FontOf(const FontFace& face);
  void WriteFont(const FontFace& face, const Font& font, Output& out) const;
  int ColourNumber(Colour colour);
  /// Whether the first of the words is a colour's with its place in a theme.
  bool NamesColour(WordsId words) const;
  int TintedNumber(const CharFormat& format) const;
  WordsId WordsOf(const CharFormat& format) const;
  std::int32_t Number(const NumberWord& word, const CharFormat& format);

  const FormatTables& tables_;
  InternTable<WrittenFormat> written_;
  std::vector<std::uint32_t> numbers_;  // in it, plus one, by CharId; 0: not registered
  HeadId head_;
  bool resets_;
  InternTable<FontFace> faces_;
  std::vector<Font> fonts_;      // of the font faces, the head's first
  std::uint32_t headFonts_ = 0;  // their count
  int nextFont_ = 1;             // readers give font 0 to text that states none
  int defaultFont_ = -1;
  Encoding defaultEncoding_ = Encoding::Windows;  // of text that states no font
  std::vector<Colour> colours_;
  static constexpr int kNoEntry = -1;
  std::unordered_map<Colour, int> colourNumbers_;  // or kNoEntry
  int bulletFont_ = -1;
};

/// Writes the control words that change one character format into another. After \hich readers take
/// sizes and effects for those of right-to-left text, so these are written before it; the font,
/// where the source says it.
void WriteChange(const WrittenFormat& from, const WrittenFormat& to, const FormatTables& tables,
                 Output& out);
/// The words of a paragraph format after \pard, without bullet and table.
std::string ParagraphWords(const ParaFormat& format, const FormatTables& tables);

}  // namespace lumenote

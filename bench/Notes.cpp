// Writes a note twice at once: as RTF and straight into a document.
#include "Notes.h"

#include <array>
#include <iterator>
#include <optional>
#include <random>
#include <string_view>
#include <utility>
#include <vector>

namespace lumenote {
namespace {

constexpr std::u16string_view kWords[] = {
    u"de",       u"de",        u"de",       u"de",        u"la",       u"la",        u"la",
    u"le",       u"le",        u"les",      u"les",       u"des",      u"du",        u"et",
    u"et",       u"à",         u"en",       u"un",        u"une",      u"dans",      u"sur",
    u"par",      u"pour",      u"avec",     u"sont",      u"est",      u"plante",    u"feuille",
    u"feuilles", u"fleur",     u"fleurs",   u"tige",      u"racine",   u"pétale",    u"sépale",
    u"étamine",  u"calice",    u"corolle",  u"fruit",     u"graine",   u"espèce",    u"genre",
    u"famille",  u"variété",   u"forêt",    u"prairie",   u"lisière",  u"rocher",    u"calcaire",
    u"altitude", u"mètres",    u"été",      u"printemps", u"automne",  u"herbier",   u"station",
    u"commune",  u"vallée",    u"exposé",   u"humide",    u"sèches",   u"fréquente", u"glabre",
    u"entière",  u"lancéolée", u"ovale",    u"opposées",  u"blanche",  u"jaune",     u"bleuâtre",
    u"pourpre",  u"œillet",    u"cœur",     u"nœud",      u"ça",       u"façade",    u"même",
    u"très",     u"souvent",   u"parfois",  u"observée",  u"synonyme", u"auteur",    u"confusion",
    u"d’après",  u"l’auteur",  u"n’est",    u"jusqu’à",   u"hauteur",  u"environ",   u"dressées",
    u"rameaux",  u"étalés",    u"capitule", u"ombelle",   u"grappe",   u"bractées",  u"akène",
    u"capsule",  u"baie",      u"écaille",  u"rhizome"};
constexpr const char* kFonts[] = {"Times New Roman", "Arial", "Courier New", "Verdana"};
constexpr Colour kColours[] = {0x000000, 0x0000FF, 0x008000, 0xFF0000, 0x800080, 0x2D52A0};

/// The byte of code page 1252 for the letters that the words use.
unsigned ByteOf(char16_t c) {
  if (c == u'œ') return 0x9C;
  return c == u'’' ? 0x92 : c;
}

std::string Hex(unsigned byte) {
  constexpr char kDigits[] = "0123456789abcdef";
  return {'\\', '\'', kDigits[byte >> 4], kDigits[byte & 15]};
}

struct Note {
  std::string rtf;
  FormatTables formats;
  Fragment content;
};

/// Fills both forms of a note; RTF says what a format differs in from the note's plain one.
class NoteWriter {
 public:
  NoteWriter() {
    for (const char* font : kFonts) {
      fonts_[fontCount_++] =
          note_.formats.fonts.Intern({std::u16string(font, font + std::strlen(font))});
    }
    note_.rtf = "{\\rtf1\\ansi\\ansicpg1252\\deff0\\deflang1036{\\fonttbl";
    for (int i = 0; i < fontCount_; ++i) {
      note_.rtf += "{\\f" + std::to_string(i) + "\\fnil\\fcharset0 " + kFonts[i] + ";}";
    }
    note_.rtf += "}\r\n{\\colortbl ;";
    for (Colour colour : kColours) {
      note_.rtf += "\\red" + std::to_string(colour & 255) + "\\green" +
                   std::to_string(colour >> 8 & 255) + "\\blue" + std::to_string(colour >> 16) +
                   ";";
    }
    note_.rtf += "}\r\n\\viewkind4\\uc1\\pard\\f0\\fs24 ";
  }

  int Bytes() const { return static_cast<int>(note_.rtf.size()); }
  CharFormat PlainFormat() const { return {.font = fonts_[0], .size = 24}; }
  FontId Font(int index) const { return fonts_[index]; }

  void Text(std::u16string_view text, const CharFormat& format, bool unicode) {
    builder_.Append(text, note_.formats.characters.Intern(format));
    for (char16_t c : text) {
      if (c < 0x80) {
        note_.rtf += static_cast<char>(c);
      } else {
        if (unicode) note_.rtf += "\\u" + std::to_string(c);
        note_.rtf += Hex(ByteOf(c));
      }
    }
  }
  void Rtf(std::string_view words) { note_.rtf += words; }
  void Break(const ParaFormat& format) {
    builder_.AppendBreak(note_.formats.characters.Intern(PlainFormat()),
                         note_.formats.paragraphs.Intern(format));
    note_.rtf += "\\par\r\n";
  }
  Note Finish() {
    note_.rtf += "\\par\r\n}\r\n";
    note_.content = builder_.Finish();
    note_.content.mark = FinalMark{note_.formats.characters.Intern(PlainFormat()), 0};
    return std::move(note_);
  }

 private:
  Note note_;
  FragmentBuilder builder_;
  std::array<FontId, std::size(kFonts)> fonts_{};
  int fontCount_ = 0;
};

/// Decides what the note says.
class NoteAuthor {
 public:
  explicit NoteAuthor(NoteShape shape) : shape_(shape) {}

  Note Write(int bytes) {
    for (bool first = true; writer_.Bytes() < bytes; first = false) {
      if (!first && shape_ == NoteShape::One) writer_.Text(u" ", writer_.PlainFormat(), false);
      const ParaFormat format = shape_ == NoteShape::Rich ? StartParagraph() : ParaFormat{};
      Paragraph(50 + Below(61));
      if (shape_ != NoteShape::One) writer_.Break(format);
    }
    return writer_.Finish();
  }

 private:
  int Below(int count) { return static_cast<int>(random_() % static_cast<unsigned>(count)); }

  ParaFormat StartParagraph() {
    ParaFormat format;
    format.alignment = static_cast<Alignment>(Below(4));
    const int left = 60 * Below(12);
    format.firstIndent = left + 60 * (Below(10) - 4);
    format.hangingIndent = left - format.firstIndent;
    format.rightIndent = 100 * Below(4);
    format.spaceBefore = 60 * Below(3);
    format.spaceAfter = 60 * Below(3);
    constexpr const char* kAlignments[] = {"", "\\qr", "\\qc", "\\qj"};
    writer_.Rtf(std::string("\\pard") + kAlignments[static_cast<int>(format.alignment)] + "\\li" +
                std::to_string(left) + "\\fi" + std::to_string(-format.hangingIndent) + "\\ri" +
                std::to_string(format.rightIndent) + "\\sb" + std::to_string(format.spaceBefore) +
                "\\sa" + std::to_string(format.spaceAfter) + "\\f0\\fs24 ");
    return format;
  }

  void Paragraph(int words) {
    std::u16string text;
    bool formatted = false;
    for (int run = 0; words > 0; words -= run) {
      run = std::min(words, shape_ == NoteShape::Rich ? 5 + Below(7) : words);
      text.clear();
      for (int i = 0; i < run; ++i) Word(text, words - i == 1);
      if (formatted) {
        FormattedRun(text);
      } else {
        writer_.Text(text, writer_.PlainFormat(), Unicode());
      }
      formatted = !formatted;
    }
  }

  bool Unicode() { return shape_ == NoteShape::Rich && Below(2) == 0; }

  void Word(std::u16string& text, bool last) {
    const std::u16string_view word = kWords[Below(std::size(kWords))];
    text += word;
    if (left_ == 0) {
      char16_t& initial = text[text.size() - word.size()];
      if (initial >= u'a' && initial <= u'z') initial -= 32;
      left_ = 6 + Below(13);
    }
    --left_;
    if (left_ == 0 || last) text += u'.';
    if (left_ % 7 == 3) text += u',';
    if (!last) text += u' ';
    if (last) left_ = 0;
  }

  void FormattedRun(std::u16string_view text) {
    CharFormat format = writer_.PlainFormat();
    const auto put = [&](const std::string& on, const char* off) {
      writer_.Rtf(on);
      writer_.Text(text, format, Unicode());
      writer_.Rtf(off);
    };
    switch (Below(6)) {
      case 0:
        format.effects = kBold;
        return put("\\b ", "\\b0 ");
      case 1:
        format.effects = kItalic;
        return put("\\i ", "\\i0 ");
      case 2:
        format.underline = Underline::Single;
        return put("\\ul ", "\\ulnone ");
      case 3:
        format.size = static_cast<std::uint16_t>(16 + 4 * (1 + Below(4)));
        return put("\\fs" + std::to_string(format.size) + " ", "\\fs24 ");
      case 4: {
        const int font = 1 + Below(3);
        format.font = writer_.Font(font);
        return put("\\f" + std::to_string(font) + " ", "\\f0 ");
      }
      default: {
        const int colour = 2 + Below(5);
        format.colour = kColours[colour - 1];
        format.effects = kBold;
        return put("{\\cf" + std::to_string(colour) + "\\b ", "}");
      }
    }
  }

  NoteShape shape_;
  std::mt19937 random_{20240601};
  NoteWriter writer_;
  int left_ = 0;  // words before the sentence ends
};

const Note& NoteOf(NoteShape shape, int bytes) {
  static std::optional<std::pair<NoteShape, int>> made;
  static Note note;
  if (made != std::pair(shape, bytes)) {
    note = {};
    note = NoteAuthor(shape).Write(bytes);
    made = {shape, bytes};
  }
  return note;
}

}  // namespace

const std::string& NoteSource(NoteShape shape, int bytes) { return NoteOf(shape, bytes).rtf; }

Document NoteDocument(NoteShape shape, int bytes) {
  const Note& note = NoteOf(shape, bytes);
  Fragment content;
  content.mark = note.content.mark;
  for (LeafCursor leaf = note.content.leaves.CursorAt(0); !leaf.AtEnd(); leaf.Next()) {
    content.leaves.Add(
        std::make_shared<Leaf>(Leaf{LeafText(leaf->text.View()), leaf->runs, leaf->marks}));
  }
  Document document;
  document.Formats() = note.formats;
  document.Replace(0, 0, std::move(content));
  return document;
}

void ForEachNote(const std::function<void(NoteShape, int, const std::string&)>& action) {
  constexpr std::pair<const char*, NoteShape> kShapes[] = {
      {"plain", NoteShape::Plain}, {"rich", NoteShape::Rich}, {"one", NoteShape::One}};
  constexpr std::pair<const char*, int> kSizes[] = {
      {"30k", 30'000}, {"1m", 1'000'000}, {"10m", 10'000'000}, {"50m", 50'000'000}};
  for (const auto& [shapeName, shape] : kShapes) {
    for (const auto& [sizeName, bytes] : kSizes) {
      action(shape, bytes, std::string(shapeName) + "/" + sizeName);
    }
  }
}

}  // namespace lumenote

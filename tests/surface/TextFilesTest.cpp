// Text files: every character and every form comes back, whatever is done to the text between.
#include <array>
#include <string>

#include "base/TextEncoding.h"
#include "surface/SurfaceContract.h"
#include "surface/editing/SourceBytes.h"

namespace lumenote {
namespace {

using namespace std::string_literals;

constexpr std::u16string_view kPath = u"C:\\n.txt";
const std::string kMark = "\xEF\xBB\xBF";

class TextFiles : public SurfaceContract {
 protected:
  void Load(std::string bytes) {
    files.files[std::u16string(kPath)] = std::move(bytes);
    s.LoadFile(kPath, FileType::Text);
  }
  std::string Saved() {
    s.SaveFile(kPath, FileType::Text);
    return files.ReadAll(kPath);
  }
};

TEST_F(TextFiles, GoBackAsTheyCame) {
  const struct {
    std::string bytes;
    std::u16string text;
    std::string edited;  // with an x ahead
  } rows[] = {{"", u"", "x"},
              {"caf\xE9 \x80\x81", u"café €\x81", "xcaf\xE9 \x80\x81"},
              {"caf\xC3\xA9 \xE2\x99\x80", u"café ♀", "xcaf\xC3\xA9 \xE2\x99\x80"},
              {kMark + "caf\xC3\xA9", u"café", kMark + "xcaf\xC3\xA9"},
              {kMark, u"", kMark + "x"},
              {kMark + kMark + "a", u"\uFEFFa", kMark + "x" + kMark + "a"},
              {"\xC3\xA9\xE9", u"Ã©é", "x\xC3\xA9\xE9"},           // no UTF-8
              {"\xC3\xA9\xC2\x85", u"Ã©Â…", "x\xC3\xA9\xC2\x85"},  // would be a control
              {"\xF0\x9F\x98\x80", u"\U0001F600", "x\xF0\x9F\x98\x80"},
              {"a\0b"s, u"a\0b"s, "xa\0b"s},
              {"a\nb\rc\r\n\xE9", u"a\r\nb\r\nc\r\né", "xa\r\nb\r\nc\r\n\xE9"},
              {"\xC3\xA9\n", u"é\r\n", "x\xC3\xA9\r\n"},
              {kMark + "a\xFF\n", u"a\uFFFD\r\n", kMark + "xa\xEF\xBF\xBD\r\n"},
              {"\xFF\xFE\xE9\0"s, u"é", "x\xE9"},
              {"\xFE\xFF\x03\xA9\x03"s, u"Ω", kMark + "x\xCE\xA9"},
              {"\xFF\xFE\0\xD8"s, u"\xD800", "\xFF\xFEx\0\0\xD8"s}};
  for (const auto& row : rows) {
    SCOPED_TRACE(testing::PrintToString(row.text));
    Load(row.bytes);
    EXPECT_EQ(s.Text(), row.text);
    s.SelLength(s.TextLength());
    s.SelBold(true);
    EXPECT_EQ(Saved(), row.bytes);
    s.SelStart(0);
    s.SelText(u"x");
    EXPECT_EQ(Saved(), row.edited);
    s.Undo();
    EXPECT_EQ(Saved(), row.bytes);
    Load(row.edited);
    EXPECT_EQ(s.Text(), u"x" + row.text);
  }
}

TEST_F(TextFiles, AreWrittenSoThatTheyReadAsTheyWere) {
  const struct {
    std::string before;
    std::u16string text;
    std::string after;
  } rows[] = {{"a", u"é", "\xE9"},
              {"a", u"α", kMark + "\xCE\xB1"},
              {"a", u"\x85", kMark + "\xC2\x85"},
              {"a", u"Ã©", kMark + "\xC3\x83\xC2\xA9"},  // in page 1252 it would be a UTF-8 é
              {"a", u"ï»¿", kMark + "\xC3\xAF\xC2\xBB\xC2\xBF"},
              {"a", u"ÿþ", kMark + "\xC3\xBF\xC3\xBE"},
              {"a", u"\xDC00\xD800", "\xFF\xFE\0\xDC\0\xD8"s},
              {"\xC3\xA9", u"e", "e"},
              {"\xC3\xA9", u"α", "\xCE\xB1"},
              {"\xC3\xA9", u"é\x85", kMark + "\xC3\xA9\xC2\x85"},
              {"\xC3\xA9", u"\uFEFFé", kMark + kMark + "\xC3\xA9"},
              {kMark + "\xC3\xA9", u"e", kMark + "e"}};
  for (const auto& row : rows) {
    SCOPED_TRACE(testing::PrintToString(row.text));
    Load(row.before);
    s.Text(row.text);
    EXPECT_EQ(Saved(), row.after);
    s.LoadFile(kPath, FileType::Text);
    EXPECT_EQ(s.Text(), row.text);
  }
  Load("\xC3\xA9");
  s.SaveFile(u"C:\\n.rtf", FileType::Rtf);
  s.LoadFile(u"C:\\n.rtf", FileType::Rtf);
  EXPECT_EQ(Saved(), "\xE9");  // what was RTF has no form of its own
  files.files[std::u16string(kPath)] = "\xC3\xA9";
  s.LoadFile(kPath, FileType::Text, TextEncoding::Windows1252);
  EXPECT_EQ(s.Text(), u"Ã©");
}

TEST_F(TextFiles, BitByBitAreWhatASaveWrites) {
  const auto nasty = std::to_array<std::u16string_view>(
      {u"", u"é\r\n€\x81", u"é♀", u"\x85", u"Ã©", u"Ã©é", u"Ã", u"Ã©Â…", u"ï»¿", u"ÿþ", u"þÿ",
       u"ð\u0178˜€", u"\U0001F600", u"\uFEFFé", u"\xDC00\xD800", u"\xD800é", u"\xD83D\U0001F600"});
  constexpr std::size_t kPiece = 1 << 14;
  for (const std::u16string_view text : nasty)
    for (std::size_t before : {0, 1, 2, 3, 4}) {  // of what stands across the end of a piece
      SCOPED_TRACE(testing::PrintToString(text) + " " + std::to_string(before));
      std::u16string whole(before == 0 ? 0 : kPiece - before, u'x');
      whole.append(text).append(2 * whole.size(), u'x');
      s.Text(whole);
      std::string bytes;
      const auto writing =
          s.WriteSnapshot(FileType::Text, [&](std::string_view more) { bytes += more; });
      while (writing->Step()) continue;
      EXPECT_TRUE(DecodeText(bytes, DetectEncoding(bytes)) == whole);
      EXPECT_TRUE(bytes == s.FileBytes(FileType::Text));
    }
}

TEST_F(TextFiles, EveryUnitButNulComesBackFromRtf) {
  std::u16string text;
  for (char32_t unit = 1; unit <= 0xFFFF; ++unit)
    if (unit != u'\r' && unit != u'\n') text.append({static_cast<char16_t>(unit), u'x'});
  s.Text(text);
  s.TextRTF(std::u16string(s.TextRTF()));
  const std::u16string read = s.Text();
  ASSERT_EQ(read.size(), text.size());
  for (std::size_t i = 0; i < text.size(); ++i) EXPECT_EQ(read[i], text[i]) << i / 2;
}

TEST_F(TextFiles, SourceOfRtfMayHoldAnyCharacter) {
  const struct {
    std::u16string source, text;
  } rows[] = {{u"é€α", u"é€α"},
              {u"\\uc0 αb\\uc2 βc", u"αbβc"},
              {u"\\\\α\\αx", u"\\ααx"},
              {u"\\b α\\bβ", u"αβ"},
              {u"\U0001F600\xD800z", u"\U0001F600\xD800z"},
              {u"\u2028\uFEFF\uFFFDx", u"\u2028\uFEFF\uFFFDx"},
              {u"{\\*\\inconnu α}b", u"b"},
              {u"\\ansicpg936 α\\b β\\par γ", u"αβ\r\nγ"}};
  for (const auto& row : rows) {
    s.TextRTF(u"{\\rtf1\\ansi " + row.source + u"}");
    EXPECT_EQ(s.Text(), row.text) << testing::PrintToString(row.source);
    s.TextRTF(WidenSource(EncodeSource(u"{\\rtf1 " + row.source + u"}")));
    EXPECT_EQ(s.Text(), row.text);
  }
  EXPECT_EQ(EncodeSource(u"\x85\u2026é"), "\\u133{}\x85\xE9");
  EXPECT_EQ(NarrowSource(u"\x85\u2026é"), "\x85\x85\xE9");
  s.TextRTF(u"{\\rtf1{\\fonttbl{\\f0 αβx;}}\\f0 z}");
  EXPECT_EQ(s.SelFontName(), u"αβx");
}

}  // namespace
}  // namespace lumenote

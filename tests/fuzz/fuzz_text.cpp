// Any bytes as a text file: unedited they are saved as they were, edited the text reads as it was
// written. Any text as a note in a string, plain or in RTF source, comes back.
#include "Target.h"
#include "backends/headless/FixedLayouter.h"
#include "base/Strings.h"
#include "base/TextEncoding.h"
#include "surface/DocumentSurface.h"
#include "surface/Fakes.h"
#include "surface/editing/SourceBytes.h"

namespace {

using namespace lumenote;

constexpr std::u16string_view kPath = u"C:\\a.txt";

struct Desk {
  MemoryClipboard clipboard;
  MemoryFiles files;
  FixedBreaker breaker{0};
  DocumentSurface surface{clipboard, files, breaker};
};

void CheckFile(std::string_view bytes) {
  Desk desk;
  desk.files.Write(kPath, bytes);
  desk.surface.LoadFile(kPath, FileType::Text, {});
  desk.surface.SaveFile(kPath, FileType::Text);
  Check(desk.files.ReadAll(kPath) == bytes);
  desk.surface.SelStart(static_cast<Position>(bytes.size() / 2));
  desk.surface.SelText(bytes.size() % 2 == 0 ? u"x" : u"\u03B1");
  const std::u16string text = desk.surface.Text();
  desk.surface.SaveFile(kPath, FileType::Text);
  desk.surface.LoadFile(kPath, FileType::Text, {});
  Check(desk.surface.Text() == text);
}

void CheckNote(const std::u16string& note) {
  const TextEncoding form = EncodingFor(note);
  Check(DecodeText(EncodeText(note, form), form) == note);
  const std::string file = EncodeTextFile(note, TextEncoding::Utf8);
  Check(DecodeText(file, DetectEncoding(file)) == note);
}

/// In RTF source each character beyond page 1252 is itself.
void CheckSource(const std::u16string& note) {
  std::u16string text;
  for (const char16_t unit : note) text += static_cast<char16_t>(unit | 0x4000);
  Desk desk;
  desk.surface.TextRTF(WidenSource(EncodeSource(u"{\\rtf1 " + text + u"}")));
  Check(desk.surface.Text() == text);
}

}  // namespace

void Try(std::string_view bytes) {
  const std::u16string units = DecodeText(bytes, TextEncoding::Utf16Le);
  CheckFile(bytes);
  CheckNote(units);
  CheckSource(units);
}

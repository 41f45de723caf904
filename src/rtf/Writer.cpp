// The body of the source: paragraphs, runs, characters.
#include "rtf/Writer.h"

#include <algorithm>
#include <unordered_map>
#include <utility>
#include <vector>

#include "rtf/CodePage.h"
#include "rtf/Output.h"
#include "rtf/WrittenFormats.h"

namespace lumenote {
namespace {

/// How the characters of a font are written.
enum class Encoding { Windows, Symbols, UnicodeOnly };

Encoding EncodingOf(const FontFace& face) {
  switch (CodePageOfCharset(face.charset)) {
    case 0:
    case kPageOfWindows:
      return Encoding::Windows;
    case kPageOfSymbols:
      return Encoding::Symbols;
    default:
      return Encoding::UnicodeOnly;
  }
}

/// The byte that a reader turns into `unit` again, or -1.
int ByteFor(char16_t unit, Encoding encoding) {
  if (unit == 0) return -1;
  if (unit <= u' ') return unit;
  if (encoding == Encoding::Windows) return ByteIn1252(unit);
  if (encoding == Encoding::Symbols) return unit > 0xF020 && unit < 0xF100 ? unit - 0xF000 : -1;
  return unit < 0x80 ? unit : -1;
}

/// The symbol of a character that has one, else nothing.
std::string_view SymbolFor(char16_t unit) {
  switch (unit) {
    case u'\\':
      return "\\\\";
    case u'{':
      return "\\{";
    case u'}':
      return "\\}";
    case u'\u00A0':
      return "\\~";
    case u'\u00AD':
      return "\\-";
    case u'\u2011':
      return "\\_";
    default:
      return {};
  }
}

class Body {
 public:
  /// `paragraphs` are the formats of the text's paragraphs in order.
  Body(const FormatTables& tables, const WrittenFormats& formats, std::vector<ParaId> paragraphs,
       Output& out)
      : tables_(tables), formats_(formats), paragraphs_(std::move(paragraphs)), out_(out) {}

  void StartParagraph();
  void Format(CharId format);
  void Text(std::u16string_view text, CharId format);

 private:
  std::size_t Plain(std::u16string_view text);
  /// Writes the first character of `text`, which is not plain; returns its length.
  std::size_t Special(std::u16string_view text, ObjectId object);
  void Coded(char16_t unit);
  const std::string& Words(ParaId paragraph);
  void Bullet(bool first);

  const FormatTables& tables_;
  const WrittenFormats& formats_;
  std::vector<ParaId> paragraphs_;
  Output& out_;

  std::size_t next_ = 0;                // of `paragraphs_`
  const std::string* words_ = nullptr;  // those of the paragraph, in `knownWords_`
  bool bullet_ = false;
  std::unordered_map<ParaId, std::string> knownWords_;
  WrittenFormat format_;
  Encoding encoding_ = Encoding::Windows;
};

void Body::StartParagraph() {
  if (next_ == paragraphs_.size()) return;
  const ParaId paragraph = paragraphs_[next_];
  const bool bullet = tables_.paragraphs[paragraph].bullet != 0;
  const std::string& words = Words(paragraph);
  const bool changed = !words_ || bullet != bullet_ || words != *words_;
  if (changed) out_.Word("pard");
  if (bullet) Bullet(changed);
  if (changed) out_.Words(words);
  words_ = &words;
  bullet_ = bullet;
  ++next_;
}

const std::string& Body::Words(ParaId paragraph) {
  const auto [entry, added] = knownWords_.try_emplace(paragraph);
  const ParaFormat& format = tables_.paragraphs[paragraph];
  if (added) entry->second = ParagraphWords(format, tables_.tabs[format.tabs]);
  return entry->second;
}

/// What readers without bullets show comes with each paragraph; the first one of a series says what
/// the bullet is.
void Body::Bullet(bool first) {
  const int font = formats_.BulletFont();
  out_.Raw("{");
  out_.Word("pntext");
  out_.Word("f", font);
  out_.Raw("\\'B7\\tab}");
  if (!first) return;
  out_.Raw("{\\*\\pn\\pnlvlblt");
  out_.Word("pnf", font);
  out_.Raw("\\pnindent0{\\pntxtb\\'B7}}");
}

void Body::Format(CharId format) {
  const WrittenFormat& wanted = formats_[format];
  if (wanted == format_) return;
  WriteChange(format_, wanted, out_);
  format_ = wanted;
  encoding_ = EncodingOf(formats_.Face(wanted.font));
}

void Body::Text(std::u16string_view text, CharId format) {
  Format(format);
  while (!text.empty()) {
    text.remove_prefix(Plain(text));
    if (!text.empty()) text.remove_prefix(Special(text, tables_.characters[format].object));
  }
}

std::size_t Body::Plain(std::u16string_view text) {
  if (encoding_ != Encoding::Symbols) return out_.Plain(text);
  return out_.Plain(text.substr(0, text.front() == u' ' ? 1 : 0));
}

std::size_t Body::Special(std::u16string_view text, ObjectId object) {
  const char16_t unit = text.front();
  if (unit == u'\r') {
    out_.Raw("\\par\r\n");
    StartParagraph();
    return 2;
  }
  if (unit == u'\t' || unit == u'\v') {
    out_.Word(unit == u'\t' ? "tab" : "line");
  } else if (unit == u'\uFFFC' && object != 0) {
    out_.Raw(tables_.objects[object].rtf);
  } else if (const std::string_view symbol = SymbolFor(unit); !symbol.empty()) {
    out_.Raw(symbol);
  } else {
    Coded(unit);
  }
  return 1;
}

void Body::Coded(char16_t unit) {
  const int byte = ByteFor(unit, encoding_);
  if (byte < 0) {
    out_.Unicode(unit);
  } else {
    out_.Hex(byte);
  }
}

/// The formats of the paragraphs between `from` and `to`, and with `mark` of the last one.
std::vector<ParaId> ParagraphsOf(const Document& document, Position from, Position to,
                                 const FinalMark* mark) {
  std::vector<ParaId> paragraphs;
  document.ForEachParagraph(from, to, [&](ParaId format) { paragraphs.push_back(format); });
  const auto all = static_cast<std::size_t>(document.ParagraphCount());
  if (mark) paragraphs.resize(all, mark->paragraph);
  return paragraphs;
}

WrittenFormats FormatsOf(const Document& document, Position from, Position to,
                         const std::vector<ParaId>& paragraphs, const FinalMark* mark) {
  const FormatTables& tables = document.Formats();
  WrittenFormats formats(tables);
  document.ForEachRun(from, to,
                      [&](Position, std::u16string_view, CharId format) { formats.Use(format); });
  if (mark) formats.Use(mark->character);
  const auto hasBullet = [&](ParaId format) { return tables.paragraphs[format].bullet != 0; };
  if (std::any_of(paragraphs.begin(), paragraphs.end(), hasBullet)) formats.UseBullets();
  return formats;
}

void WriteHead(const WrittenFormats& formats, Output& out) {
  out.Raw("{\\rtf1\\ansi\\ansicpg1252\\deff0\\deflang1036");
  formats.WriteFontTable(out);
  formats.WriteColourTable(out);
  out.Words("\\viewkind4\\uc1");
}

/// With `mark` a whole document, else a selection.
void WriteText(const Document& document, Position from, Position to, const FinalMark* mark,
               const ByteSink& sink) {
  std::vector<ParaId> paragraphs = ParagraphsOf(document, from, to, mark);
  const WrittenFormats formats = FormatsOf(document, from, to, paragraphs, mark);
  Output out(sink);
  WriteHead(formats, out);
  Body body(document.Formats(), formats, std::move(paragraphs), out);
  body.StartParagraph();
  document.ForEachRun(from, to, [&](Position, std::u16string_view text, CharId format) {
    body.Text(text, format);
  });
  if (mark) {
    body.Format(mark->character);
    out.Raw("\\par ");
  }
  out.Raw("}\r\n");
  out.Flush();
}

std::string Written(const Document& document, Position from, Position to, const FinalMark* mark) {
  std::string source;
  WriteText(document, from, to, mark, [&](std::string_view piece) { source += piece; });
  return source;
}

}  // namespace

void WriteRtf(const Document& document, const ByteSink& sink) {
  const FinalMark mark = document.Mark();
  WriteText(document, 0, document.Length(), &mark, sink);
}

std::string WriteRtf(const Document& document) {
  const FinalMark mark = document.Mark();
  return Written(document, 0, document.Length(), &mark);
}

std::string WriteRtf(const Document& document, Position from, Position to) {
  return Written(document, from, to, nullptr);
}

}  // namespace lumenote

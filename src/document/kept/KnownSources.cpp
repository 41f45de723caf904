#include "document/kept/KnownSources.h"

#include <algorithm>
#include <charconv>
#include <iterator>
#include <utility>

#include "base/Windows1252.h"

namespace lumenote {
namespace {

/// Appends an address as it stands within the quotes of a field's instruction, where a backslash is
/// doubled once for the field and once for RTF.
void AppendQuoted(char16_t unit, std::string& out) {
  if (unit == u'\\') {
    out += "\\\\\\\\";
  } else if (unit == u'"') {
    out += "%22";
  } else if (unit == u'{' || unit == u'}') {
    out += '\\';
    out += static_cast<char>(unit);
  } else if (unit >= 0x7F) {
    out += "\\u" + std::to_string(static_cast<std::int16_t>(unit)) + "?";
  } else if (unit >= u' ') {
    out += static_cast<char>(unit);
  }
}

std::string_view NumberWord(char style) {
  switch (style) {
    case 'a':
      return "\\pnlcltr";
    case 'A':
      return "\\pnucltr";
    case 'i':
      return "\\pnlcrm";
    case 'I':
      return "\\pnucrm";
    default:
      return "\\pndec";
  }
}

constexpr std::string_view kBlips[] = {"pngblip", "jpegblip"};  // indexed by PictureType
constexpr std::u16string_view kLinkName = u"HYPERLINK";

/// A token of kept source, which is pure ASCII with paired braces.
struct SourceToken {
  enum class Kind { Open, Close, Word, Character };
  Kind kind = Kind::Character;
  char16_t character = 0;
  std::string_view word{};
  int number = 0;
};

bool IsLetter(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }

/// The word or symbol after a backslash, which `source` loses.
SourceToken TakeControl(std::string_view& source) {
  using Kind = SourceToken::Kind;
  std::size_t end = 0;
  while (end < source.size() && IsLetter(source[end])) ++end;
  if (end == 0) {
    unsigned byte = 0;
    const bool hex = source.starts_with('\'') && source.size() > 2;
    if (hex) std::from_chars(source.data() + 1, source.data() + 3, byte, 16);
    const char16_t unit = hex              ? UnitOf1252(static_cast<char>(byte))
                          : source.empty() ? u'\0'
                                           : static_cast<unsigned char>(source[0]);
    source.remove_prefix(std::min<std::size_t>(hex ? 3 : 1, source.size()));
    return {.kind = unit == u'*' ? Kind::Word : Kind::Character, .character = unit};
  }
  SourceToken token{.kind = Kind::Word, .word = source.substr(0, end)};
  const auto number =
      std::from_chars(source.data() + end, source.data() + source.size(), token.number);
  source.remove_prefix(static_cast<std::size_t>(number.ptr - source.data()));
  if (source.starts_with(' ')) source.remove_prefix(1);
  return token;
}

/// Calls `visit` with each token until it returns false. Line ends are none.
template <class Visit>
void ForEachToken(std::string_view source, Visit visit) {
  using Kind = SourceToken::Kind;
  bool going = true;
  while (going && !source.empty()) {
    const char c = source.front();
    source.remove_prefix(1);
    if (c == '\\')
      going = visit(TakeControl(source));
    else if (c == '{' || c == '}')
      going = visit(SourceToken{.kind = c == '{' ? Kind::Open : Kind::Close});
    else if (c != '\r' && c != '\n')
      going = visit(SourceToken{.character = static_cast<unsigned char>(c)});
  }
}

/// The text of a field's opening up to the field's data, that is, its instruction.
std::u16string InstructionOf(std::string_view opening) {
  std::u16string text;
  bool fallback = false;  // the character that stands for a \u follows
  ForEachToken(opening, [&](const SourceToken& token) {
    const bool character = token.kind == SourceToken::Kind::Character;
    if (character && !fallback) text += token.character;
    if (character) fallback = false;
    if (token.word == "u") {
      text += static_cast<char16_t>(token.number);
      fallback = true;
    }
    return token.word != "datafield";
  });
  return text;
}

/// A word, or what is in quotes, at the start of an instruction, which loses it. A backslash stands
/// before a backslash or a quote.
std::u16string TakeArgument(std::u16string_view& text) {
  const bool quoted = text.starts_with(u'"');
  std::u16string argument;
  std::size_t at = quoted ? 1 : 0;
  for (; at < text.size() && text[at] != (quoted ? u'"' : u' '); ++at) {
    if (text[at] == u'\\' && at + 1 < text.size()) ++at;
    argument += text[at];
  }
  text.remove_prefix(std::min(at + 1, text.size()));
  return argument;
}

/// Collects bytes from hexadecimal digits.
class HexBytes {
 public:
  void Add(char16_t digit) {
    constexpr std::u16string_view kDigits = u"0123456789abcdefABCDEF";
    const std::size_t at = kDigits.find(digit);
    if (at == kDigits.npos) return;
    const std::size_t value = at < 16 ? at : at - 6;
    if (half_) bytes_ += static_cast<char>(*half_ << 4 | value);
    half_ = half_ ? std::nullopt : std::optional(value);
  }
  std::string Take() { return std::move(bytes_); }

 private:
  std::string bytes_;
  std::optional<std::size_t> half_;
};

std::string Goal(std::string_view word, int twips) {
  return twips > 0 ? std::string(word) + std::to_string(twips) : std::string();
}

}  // namespace

std::string LinkOpening(std::u16string_view address) {
  const bool inside = address.starts_with(u'#');
  if (inside) address.remove_prefix(1);
  std::string opening = "{\\field{\\*\\fldinst{HYPERLINK ";
  if (inside) opening += "\\\\l ";
  opening += '"';
  for (const char16_t unit : address) AppendQuoted(unit, opening);
  return opening += "\"}}{\\fldrslt";
}

// After the address come switches: \l a place in it, \o a tip and \t a frame, which are not read.
std::optional<std::u16string> LinkAddress(std::string_view opening) {
  const std::u16string text = InstructionOf(opening);
  std::u16string_view rest = text;
  const std::size_t name = rest.find(kLinkName);
  if (name == rest.npos) return std::nullopt;
  rest.remove_prefix(name + kLinkName.size());
  std::u16string address;
  std::u16string place;
  char16_t option = 0;
  while (rest.remove_prefix(std::min(rest.find_first_not_of(u' '), rest.size())), !rest.empty()) {
    if (rest.starts_with(u'\\') && rest.size() > 1) {
      option = rest[1];
      rest.remove_prefix(2);
      continue;
    }
    const std::u16string argument = TakeArgument(rest);
    if (option == u'l') place = u"#" + argument;
    if (option == 0 && address.empty()) address = argument;
    option = u'?';
  }
  address += place;
  return address.empty() ? std::nullopt : std::optional(address);
}

std::string NumberingGroup(char style, int start) {
  return "{\\*\\pn\\pnlvlbody" + std::string(NumberWord(style)) + "\\pnstart" +
         std::to_string(start) + "{\\pntxta .}}";
}

std::string RowDefinition(const std::vector<std::int32_t>& edges, bool borders) {
  constexpr std::string_view kSides[] = {"t", "l", "b", "r"};
  std::string source = "\\trowd\\trgaph70";
  for (const std::int32_t edge : edges) {
    if (borders)
      for (const std::string_view side : kSides)
        source.append("\\clbrdr").append(side).append("\\brdrs\\brdrw10");
    source += "\\cellx" + std::to_string(edge);
  }
  return source;
}

bool HasBorders(std::string_view rowDefinition) {
  return rowDefinition.find("\\clbrdr") != rowDefinition.npos;
}

std::string PictureGroup(const PictureData& picture) {
  constexpr char kDigits[] = "0123456789abcdef";
  std::string group = "{\\pict\\";
  group += kBlips[static_cast<std::size_t>(picture.type)];
  group += Goal("\\picwgoal", picture.width) + Goal("\\pichgoal", picture.height) + "\r\n";
  group.reserve(group.size() + 2 * picture.bytes.size() + 1);
  for (const char c : picture.bytes) {
    const auto byte = static_cast<unsigned char>(c);
    group += kDigits[byte >> 4];
    group += kDigits[byte & 15];
  }
  return group += '}';
}

// The bytes are the digits outside inner groups, such as a picture's properties.
std::optional<PictureData> PictureOf(std::string_view group) {
  const std::size_t start = group.find("\\pict");
  if (start == group.npos) return std::nullopt;
  PictureData picture;
  bool known = false;
  int depth = 0;
  HexBytes bytes;
  ForEachToken(group.substr(start), [&](const SourceToken& token) {
    if (token.kind == SourceToken::Kind::Open) ++depth;
    if (token.kind == SourceToken::Kind::Close) --depth;
    if (depth != 0) return depth > 0;
    if (token.kind == SourceToken::Kind::Character) bytes.Add(token.character);
    for (std::size_t type = 0; type < std::size(kBlips); ++type) {
      if (token.word != kBlips[type]) continue;
      picture.type = static_cast<PictureType>(type);
      known = true;
    }
    if (token.word == "picwgoal") picture.width = token.number;
    if (token.word == "pichgoal") picture.height = token.number;
    return true;
  });
  picture.bytes = bytes.Take();
  if (!known || picture.bytes.empty()) return std::nullopt;
  return picture;
}

}  // namespace lumenote

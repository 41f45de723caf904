#include "document/kept/LinkSource.h"

#include <algorithm>
#include <cstdint>

#include "document/kept/SourceTokens.h"

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

constexpr std::u16string_view kLinkName = u"HYPERLINK";

/// The text of a field's opening up to the field's data, that is, its instruction.
std::u16string InstructionOf(std::string_view opening) {
  std::u16string text;
  SourceTokens tokens(opening);
  for (auto token = tokens.Next(); token && token->word != "datafield"; token = tokens.Next())
    if (token->kind == SourceToken::Kind::Character) text += token->character;
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

}  // namespace lumenote

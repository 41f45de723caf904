// Parses, escapes and edits the lines of a settings file.
#include "backends/native/settings/IniText.h"

#include <algorithm>
#include <iterator>

#include "base/Strings.h"

namespace lumenote {
namespace {

constexpr std::u16string_view kSpecialInNames = u"[]/=#;";

bool MustEscape(std::u16string_view text, std::size_t i, std::u16string_view special) {
  const char16_t c = text[i];
  const bool edgeBlank = c == u' ' && (i == 0 || i + 1 == text.size());
  return c < 0x20 || c == 0x7F || IsSurrogate(c) || edgeBlank || special.find(c) != special.npos;
}

std::string Escaped(std::u16string_view text, std::u16string_view special = {}) {
  std::string out;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (IsPairAt(text, i)) {
      out += ToUtf8(text.substr(i++, 2));
    } else if (text[i] == u'\\') {
      out += "\\\\";
    } else if (MustEscape(text, i, special)) {
      out += "\\u" + HexOfUnit(text[i]);
    } else {
      out += ToUtf8(text.substr(i, 1));
    }
  }
  return out;
}

std::string_view Trimmed(std::string_view text) {
  constexpr std::string_view kBlanks = " \t\r";
  const std::size_t first = text.find_first_not_of(kBlanks);
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

/// Decodes a name or value; empty if it is not UTF-8 or has an unknown escape.
std::optional<std::u16string> Unescaped(std::string_view text) {
  text = Trimmed(text);
  if (!IsUtf8(text)) return std::nullopt;
  std::u16string out;
  while (true) {
    const std::size_t plain = std::min(text.find('\\'), text.size());
    out += FromUtf8(text.substr(0, plain));
    text.remove_prefix(plain);
    if (text.empty()) return out;
    const std::optional<char16_t> unit =
        text.starts_with("\\u") ? UnitFromHex(text.substr(2)) : std::nullopt;
    if (!unit && !text.starts_with("\\\\")) return std::nullopt;
    out += unit.value_or(u'\\');
    text.remove_prefix(unit ? 6 : 2);
  }
}

/// The text before and after the only, or the first, `separator`.
std::optional<std::pair<std::u16string, std::u16string>> Halves(std::string_view text,
                                                                char separator) {
  const std::size_t middle = text.find(separator);
  if (middle == std::string_view::npos) return std::nullopt;
  std::optional<std::u16string> left = Unescaped(text.substr(0, middle));
  std::optional<std::u16string> right = Unescaped(text.substr(middle + 1));
  if (!left || !right) return std::nullopt;
  return std::pair(std::move(*left), std::move(*right));
}

std::string EntryText(std::u16string_view key, std::u16string_view value) {
  return Escaped(key, kSpecialInNames) + "=" + Escaped(value);
}

std::string HeaderText(const std::pair<std::u16string, std::u16string>& name) {
  std::string text = "[";
  text.append(Escaped(name.first, kSpecialInNames)).append("/");
  return text.append(Escaped(name.second, kSpecialInNames)).append("]");
}

}  // namespace

IniText::IniText(std::string_view bytes) {
  Section* section = nullptr;
  while (!bytes.empty()) {
    const std::size_t end = std::min(bytes.find('\n'), bytes.size());
    Enter(lines_.insert(lines_.end(), Read(bytes.substr(0, end), section)));
    section = lines_.back().section;
    bytes.remove_prefix(std::min(end + 1, bytes.size()));
  }
}

IniText::Line IniText::Read(std::string_view text, Section* section) {
  const std::string_view content = Trimmed(text);
  Line line{std::string(text), section};
  if (content.starts_with('#') || content.starts_with(';')) return line;
  if (content.starts_with('[')) {
    const bool closed = content.ends_with(']');
    const auto name = closed ? Halves(content.substr(1, content.size() - 2), '/') : std::nullopt;
    line.section = name ? &sections_[*name] : nullptr;
  } else if (auto entry = Halves(content, '=')) {
    line.key = std::move(entry->first);
    line.value = std::move(entry->second);
  }
  return line;
}

void IniText::Enter(Lines::iterator line) {
  if (!line->section) return;
  if (line->key) line->section->keys[*line->key] = line;
  if (!Trimmed(line->text).empty()) line->section->last = line;
}

const IniText::Lines::iterator* IniText::FindLine(std::u16string_view application,
                                                  std::u16string_view section,
                                                  std::u16string_view key) const {
  const auto named = sections_.find({std::u16string(application), std::u16string(section)});
  if (named == sections_.end()) return nullptr;
  const auto line = named->second.keys.find(key);
  return line == named->second.keys.end() ? nullptr : &line->second;
}

std::optional<std::u16string> IniText::Find(std::u16string_view application,
                                            std::u16string_view section,
                                            std::u16string_view key) const {
  const Lines::iterator* line = FindLine(application, section, key);
  return line ? std::optional((*line)->value) : std::nullopt;
}

void IniText::Set(std::u16string_view application, std::u16string_view section,
                  std::u16string_view key, std::u16string_view value) {
  if (const Lines::iterator* line = FindLine(application, section, key)) {
    (*line)->text = EntryText(key, value);
    (*line)->value = value;
    return;
  }
  const SectionName name(application, section);
  Section& entered = sections_[name];
  if (!entered.last) AppendHeader(name, entered);
  Enter(lines_.insert(std::next(*entered.last), Line{EntryText(key, value), &entered,
                                                     std::u16string(key), std::u16string(value)}));
}

void IniText::AppendHeader(const SectionName& name, Section& section) {
  if (!lines_.empty()) lines_.push_back({});
  Enter(lines_.insert(lines_.end(), Line{HeaderText(name), &section}));
}

std::string IniText::Bytes() const {
  std::string bytes;
  for (const Line& line : lines_) bytes.append(line.text).append("\n");
  return bytes;
}

}  // namespace lumenote

#include "html/source/HtmlTokenizer.h"

#include <algorithm>
#include <array>

#include "html/source/Ascii.h"
#include "html/source/CharacterReferences.h"

namespace lumenote {
namespace {

constexpr std::size_t kMaxAttributes = 64;  // of one tag; the others are dropped
constexpr std::size_t kNone = std::u16string_view::npos;

/// Elements whose content is text, without tags or comments.
constexpr std::array<std::string_view, 9> kRawElements = {
    "iframe", "noembed", "noframes", "plaintext", "script", "style", "textarea", "title", "xmp"};

bool IsRaw(std::string_view name) {
  return std::ranges::find(kRawElements, name) != kRawElements.end();
}
/// Whether the text-only element has character references.
bool HasReferences(std::string_view name) { return name == "title" || name == "textarea"; }

bool EndsName(char16_t c) { return IsHtmlSpace(c) || c == u'/' || c == u'>'; }

}  // namespace

const std::u16string* HtmlToken::Find(std::string_view attribute) const {
  const auto found = std::ranges::find(attributes, attribute, &HtmlAttribute::name);
  return found == attributes.end() ? nullptr : &found->value;
}

const HtmlToken& HtmlTokenizer::Next() {
  token_.text = {};
  token_.attributes.clear();
  while (!rest_.empty()) {
    if (!raw_.empty() && RawEnd() > 0) {
      TakeRawText();
      return token_;
    }
    if (raw_.empty() && !AtTag()) {
      TakeText();
      return token_;
    }
    raw_.clear();
    if (TakeMarkup()) return token_;
  }
  token_.kind = HtmlToken::Kind::Finish;
  return token_;
}

/// Whether a tag, a comment or the like begins here; other "<" are text.
bool HtmlTokenizer::AtTag() const {
  if (!rest_.starts_with(u'<') || rest_.size() == 1) return false;
  const char16_t next = rest_[1];
  return IsAsciiLetter(next) || next == u'!' || next == u'?' || (next == u'/' && rest_.size() > 2);
}

/// Reads what begins with "<"; false if it is nothing but a comment.
bool HtmlTokenizer::TakeMarkup() {
  rest_.remove_prefix(1);
  if (rest_.starts_with(u"!--")) {
    SkipComment();
    return false;
  }
  if (IsAsciiLetter(rest_.front())) return TakeTag(HtmlToken::Kind::Start);
  if (!rest_.starts_with(u'/') || !IsAsciiLetter(rest_[1])) {
    SkipPast(u">");
    return false;
  }
  rest_.remove_prefix(1);
  return TakeTag(HtmlToken::Kind::End);
}

void HtmlTokenizer::SkipPast(std::u16string_view end) {
  const std::size_t at = rest_.find(end);
  rest_.remove_prefix(at == kNone ? rest_.size() : at + end.size());
}

/// A comment ends with "-->" or "--!>"; "<!-->" and "<!--->" are whole ones.
void HtmlTokenizer::SkipComment() {
  rest_.remove_prefix(3);
  if (rest_.starts_with(u'>') || rest_.starts_with(u"->")) return SkipPast(u">");
  do {
    SkipPast(u"--");
    while (rest_.starts_with(u'-')) rest_.remove_prefix(1);
  } while (!rest_.empty() && !rest_.starts_with(u'>') && !rest_.starts_with(u"!>"));
  SkipPast(u">");
}

void HtmlTokenizer::SkipSpaces() {
  const auto end = std::ranges::find_if_not(rest_, IsHtmlSpace);
  rest_.remove_prefix(static_cast<std::size_t>(end - rest_.begin()));
}

std::string HtmlTokenizer::TakeName() {
  const auto end = std::ranges::find_if(rest_, EndsName);
  const auto length = static_cast<std::size_t>(end - rest_.begin());
  std::string name = NameOf(rest_.substr(0, length));
  rest_.remove_prefix(length);
  return name;
}

/// False if the source ends within the tag.
bool HtmlTokenizer::TakeTag(HtmlToken::Kind kind) {
  token_.kind = kind;
  token_.name = TakeName();
  while (TakeAttribute()) continue;
  if (rest_.empty()) return false;
  rest_.remove_prefix(1);
  if (kind == HtmlToken::Kind::Start && IsRaw(token_.name)) raw_ = token_.name;
  return true;
}

/// False at the end of the tag. The first attribute of a name counts.
bool HtmlTokenizer::TakeAttribute() {
  while (!rest_.empty() && (IsHtmlSpace(rest_.front()) || rest_.front() == u'/'))
    rest_.remove_prefix(1);
  if (rest_.empty() || rest_.front() == u'>') return false;
  const auto end = std::find_if(rest_.begin() + 1, rest_.end(),
                                [](char16_t c) { return c == u'=' || EndsName(c); });
  const auto length = static_cast<std::size_t>(end - rest_.begin());
  std::string name = NameOf(rest_.substr(0, length));
  rest_.remove_prefix(length);
  SkipSpaces();
  std::u16string value;
  if (rest_.starts_with(u'=')) value = TakeValue();
  if (token_.attributes.size() < kMaxAttributes && !token_.Find(name))
    token_.attributes.push_back({std::move(name), std::move(value)});
  return true;
}

/// The value after "=", in quotes or without them.
std::u16string HtmlTokenizer::TakeValue() {
  rest_.remove_prefix(1);
  SkipSpaces();
  const char16_t first = rest_.empty() ? u'>' : rest_.front();
  const bool quoted = first == u'"' || first == u'\'';
  if (quoted) rest_.remove_prefix(1);
  const auto end = std::ranges::find_if(
      rest_, [=](char16_t c) { return quoted ? c == first : c == u'>' || IsHtmlSpace(c); });
  std::u16string_view source = rest_.substr(0, static_cast<std::size_t>(end - rest_.begin()));
  rest_.remove_prefix(std::min(source.size() + (quoted ? 1 : 0), rest_.size()));
  std::u16string value;
  while (!source.empty()) {
    const std::size_t plain = std::min(source.find(u'&'), source.size());
    value += source.substr(0, plain);
    source.remove_prefix(plain);
    if (!source.empty()) source.remove_prefix(TakeReference(source, true, value));
  }
  return value;
}

/// Characters up to the next tag or reference, or one reference.
void HtmlTokenizer::TakeText() {
  token_.kind = HtmlToken::Kind::Text;
  buffer_.clear();
  if (rest_.front() == u'&') {
    rest_.remove_prefix(TakeReference(rest_, false, buffer_));
    token_.text = buffer_;
    return;
  }
  token_.text = rest_.substr(0, std::min(rest_.find_first_of(u"<&", 1), rest_.size()));
  rest_.remove_prefix(token_.text.size());
}

void HtmlTokenizer::TakeRawText() {
  token_.kind = HtmlToken::Kind::Text;
  buffer_.clear();
  std::u16string_view content = rest_.substr(0, RawEnd());
  rest_.remove_prefix(content.size());
  token_.text = content;
  if (!HasReferences(raw_)) return;
  for (; !content.empty(); content.remove_prefix(1)) {
    while (content.starts_with(u'&')) content.remove_prefix(TakeReference(content, false, buffer_));
    if (content.empty()) break;
    buffer_ += content.front();
  }
  token_.text = buffer_;
}

/// Whether the end tag of the text-only element is at `at`.
bool HtmlTokenizer::EndsRaw(std::size_t at) const {
  const std::u16string_view tag = rest_.substr(at);
  if (!tag.starts_with(u"</") || tag.size() < raw_.size() + 3) return false;
  return NameOf(tag.substr(2, raw_.size())) == raw_ && EndsName(tag[2 + raw_.size()]);
}

/// The length of the text-only content at hand. In a script, one within "<!--" and "-->" does not
/// end at the end of another script that it holds.
std::size_t HtmlTokenizer::RawEnd() const {
  if (raw_ == "plaintext") return rest_.size();
  bool commented = false;
  bool inner = false;
  for (std::size_t at = rest_.find_first_of(u"<-"); at != kNone;
       at = rest_.find_first_of(u"<-", at + 1)) {
    const std::u16string_view here = rest_.substr(at);
    const bool script = raw_ == "script";
    if (EndsRaw(at) && !inner) return at;
    if (EndsRaw(at)) inner = false;
    if (script && here.starts_with(u"<!--")) commented = true;
    if (here.starts_with(u"-->")) commented = inner = false;
    if (commented && StartsWithName(here, u"<script") && here.size() > 7 && EndsName(here[7]))
      inner = true;
  }
  return rest_.size();
}

}  // namespace lumenote

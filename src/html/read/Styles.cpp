#include "html/read/Styles.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <string>
#include <utility>

#include "html/read/CssValues.h"
#include "html/source/Ascii.h"

namespace lumenote {
namespace {

using Value = std::u16string_view;

void SetEffect(bool on, std::uint16_t effect, LookChange& change) {
  change.on = static_cast<std::uint16_t>(on ? change.on | effect : change.on & ~effect);
  change.off = static_cast<std::uint16_t>(on ? change.off & ~effect : change.off | effect);
}

/// The part of `text` up to `separator`, which `text` loses; quotes and brackets protect it.
Value TakePart(Value& text, char16_t separator) {
  char16_t quote = 0;
  int depth = 0;
  std::size_t end = 0;
  for (; end < text.size(); ++end) {
    const char16_t c = text[end];
    if (quote != 0) {
      if (c == quote) quote = 0;
    } else if (c == u'"' || c == u'\'') {
      quote = c;
    } else if (c == separator && depth == 0) {
      break;
    } else if (c == u'(') {
      ++depth;
    } else if (c == u')' && depth > 0) {
      --depth;
    }
  }
  const Value part = text.substr(0, end);
  text.remove_prefix(std::min(end + 1, text.size()));
  return TrimHtml(part);
}

/// Calls `visit` with each word.
template <class Visit>
void ForEachWord(Value value, Visit visit) {
  for (value = TrimHtml(value); !value.empty(); value = TrimHtml(value))
    visit(TakePart(value, u' '));
}

// --- characters

void FontWeight(Value value, LookChange& change) {
  Value rest = value;
  const std::optional<double> number = TakeNumber(rest);
  const bool bold = IsName(value, u"bold") || IsName(value, u"bolder") || number >= 600;
  if (bold || number || IsName(value, u"normal") || IsName(value, u"lighter"))
    SetEffect(bold, kBold, change);
}

void FontStyle(Value value, LookChange& change) {
  const bool italic = IsName(value, u"italic") || StartsWithName(value, u"oblique");
  if (italic || IsName(value, u"normal")) SetEffect(italic, kItalic, change);
}

void FontVariant(Value value, LookChange& change) {
  SetEffect(IsName(value, u"small-caps"), kSmallCaps, change);
}

void TextTransform(Value value, LookChange& change) {
  SetEffect(IsName(value, u"uppercase"), kAllCaps, change);
}

struct LineStyle {
  Value name;
  Underline underline;
};
constexpr LineStyle kLineStyles[] = {
    {u"solid", Underline::Single}, {u"double", Underline::Double}, {u"dotted", Underline::Dotted},
    {u"dashed", Underline::Dash},  {u"wavy", Underline::Wave},
};

void TextDecoration(Value value, LookChange& change) {
  ForEachWord(value, [&](Value word) {
    const auto* const style =
        std::ranges::find_if(kLineStyles, [=](LineStyle one) { return IsName(word, one.name); });
    if (IsName(word, u"none")) {
      change.underline = Underline::None;
      SetEffect(false, kStrike, change);
    } else if (IsName(word, u"underline")) {
      if (!change.underline || *change.underline == Underline::None)
        change.underline = Underline::Single;
    } else if (IsName(word, u"line-through")) {
      SetEffect(true, kStrike, change);
    } else if (style != std::end(kLineStyles) &&
               change.underline.value_or(Underline::None) != Underline::None) {
      change.underline = style->underline;
    }
  });
}

void VerticalAlign(Value value, LookChange& change) {
  if (IsName(value, u"super")) SetEffect(true, kSuperscript, change);
  if (IsName(value, u"sub")) SetEffect(true, kSubscript, change);
  if (IsName(value, u"baseline")) SetEffect(false, kSuperscript | kSubscript, change);
  change.offset = ReadLength(value);
}

void FontSize(Value value, LookChange& change) { change.size = ReadFontSize(value); }
void LetterSpacing(Value value, LookChange& change) { change.spacing = ReadLength(value); }
void TextColour(Value value, LookChange& change) { change.colour = ReadColour(value); }

/// The first word of "background" that is a colour.
void Background(Value value, LookChange& change) {
  ForEachWord(value, [&](Value word) {
    if (!change.highlight) change.highlight = ReadColour(word);
  });
}

// --- paragraphs

void TextIndent(Value value, LookChange& change) { change.first = ReadLength(value); }
void MarginLeft(Value value, LookChange& change) { change.left = ReadLength(value); }
void MarginRight(Value value, LookChange& change) { change.right = ReadLength(value); }
void MarginTop(Value value, LookChange& change) { change.above = ReadLength(value); }
void MarginBottom(Value value, LookChange& change) { change.below = ReadLength(value); }
void PaddingLeft(Value value, LookChange& change) { change.padding = ReadLength(value); }

/// "all", "above-below sides", "above sides below", "above right below left".
void Margin(Value value, LookChange& change) {
  std::array<Value, 4> sides;
  std::size_t count = 0;
  ForEachWord(value, [&](Value word) {
    if (count < sides.size()) sides[count++] = word;
  });
  if (count == 0) return;
  const auto side = [&](std::size_t at, std::size_t otherwise) {
    return sides[at < count ? at : otherwise < count ? otherwise : 0];
  };
  MarginTop(side(0, 0), change);
  MarginRight(side(1, 0), change);
  MarginBottom(side(2, 0), change);
  MarginLeft(side(3, 1), change);
}

void LineHeight(Value value, LookChange& change) {
  Value rest = value;
  const std::optional<double> number = TakeNumber(rest);
  if (IsName(value, u"normal") || number == 1 || IsName(value, u"100%")) {
    change.lines = {LineRule::Single};
  } else if (number && (rest.empty() || rest == u"%")) {
    const double lines = rest.empty() ? *number : *number / 100;
    change.lines = {LineRule::Multiple, {lines}};
    if (lines == 1.5) change.lines = {LineRule::OneAndHalf};
    if (lines == 2) change.lines = {LineRule::Double};
  } else if (const auto length = ReadLength(value)) {
    change.lines = {LineRule::Exact, *length};
  }
}

/// A word processor's hint that the line height is the least one; it may stand before or after.
void LineHeightRule(Value value, LookChange& change) {
  if (IsName(value, u"at-least") && change.lines && change.lines->rule == LineRule::Exact)
    change.lines->rule = LineRule::AtLeast;
}

void TextDirection(Value value, LookChange& change) { change.rightToLeft = IsName(value, u"rtl"); }

// --- content

void Display(Value value, LookChange& change) {
  if (IsName(value, u"none") && !change.text) change.text = Look::Text::Hidden;
}

/// Shares of the page's width are not known.
void Width(Value value, LookChange& change) {
  if (!value.ends_with(u'%')) change.width = ReadLength(value);
}

void WhiteSpace(Value value, LookChange& change) {
  change.preserve = StartsWithName(value, u"pre") || IsName(value, u"break-spaces");
}

void ListStyle(Value value, LookChange& change) {
  ForEachWord(value, [&](Value word) {
    if (IsName(word, u"none")) change.unmarked = true;
  });
}

// A word processor's own words.

/// Hidden characters: they are in the text, unlike what is not displayed.
void Hide(Value value, LookChange& change) {
  if (!IsName(value, u"all")) return;
  SetEffect(true, kHidden, change);
  change.text = Look::Text::Shown;
}

void MsoList(Value value, LookChange& change) {
  if (IsName(value, u"ignore"))
    change.text = Look::Text::Marker;
  else
    change.item = !IsName(value, u"none");
}

void TabCount(Value value, LookChange& change) {
  constexpr double kMost = 64;
  change.tabs = static_cast<int>(std::clamp(TakeNumber(value).value_or(0), 0.0, kMost));
}

void TextRaise(Value value, LookChange& change) { change.offset = ReadLength(value); }

void SpaceRun(Value, LookChange& change) { change.spaces = true; }

struct Property {
  std::string_view name;
  void (*read)(Value, LookChange&);
};
constexpr Property kProperties[] = {
    {"background", Background},
    {"background-color", Background},
    {"color", TextColour},
    {"direction", TextDirection},
    {"display", Display},
    {"font-size", FontSize},
    {"font-style", FontStyle},
    {"font-variant", FontVariant},
    {"font-variant-caps", FontVariant},
    {"font-weight", FontWeight},
    {"letter-spacing", LetterSpacing},
    {"line-height", LineHeight},
    {"list-style", ListStyle},
    {"list-style-type", ListStyle},
    {"margin", Margin},
    {"margin-bottom", MarginBottom},
    {"margin-left", MarginLeft},
    {"margin-right", MarginRight},
    {"margin-top", MarginTop},
    {"mso-hide", Hide},
    {"mso-line-height-rule", LineHeightRule},
    {"mso-list", MsoList},
    {"mso-spacerun", SpaceRun},
    {"mso-tab-count", TabCount},
    {"mso-text-raise", TextRaise},
    {"padding-inline-start", PaddingLeft},
    {"padding-left", PaddingLeft},
    {"text-align", ReadAlignment},
    {"text-decoration", TextDecoration},
    {"text-decoration-line", TextDecoration},
    {"text-decoration-style", TextDecoration},
    {"text-indent", TextIndent},
    {"text-transform", TextTransform},
    {"vertical-align", VerticalAlign},
    {"white-space", WhiteSpace},
    {"white-space-collapse", WhiteSpace},
    {"width", Width},
};
static_assert(std::ranges::is_sorted(kProperties, {}, &Property::name));

/// "italic bold 12pt/1.5 Arial, sans-serif"
void Font(Value value, FormatTables& formats, LookChange& change) {
  while (!value.empty()) {
    const Value word = TakePart(value, u' ');
    Value size = word;
    if (const auto length = ReadFontSize(TakePart(size, u'/'))) {
      change.size = length;
      if (!size.empty()) LineHeight(size, change);
      return ReadFontFamily(value, formats, change);
    }
    if (!IsName(word, u"normal")) {
      FontStyle(word, change);
      FontWeight(word, change);
    }
    if (IsName(word, u"small-caps")) FontVariant(word, change);
    value = TrimHtml(value);
  }
}

void Declare(Value name, Value value, FormatTables& formats, LookChange& change) {
  if (const std::size_t mark = value.rfind(u'!'); mark != value.npos && mark > 0)
    value = TrimHtml(value.substr(0, mark));
  if (IsName(name, u"font")) return Font(value, formats, change);
  if (IsName(name, u"font-family")) return ReadFontFamily(value, formats, change);
  const std::string key = NameOf(name);
  const auto* const property = std::ranges::lower_bound(kProperties, key, {}, &Property::name);
  if (property != std::end(kProperties) && property->name == key) property->read(value, change);
}

constexpr Value kGeneralFamilies[] = {
    u"serif",
    u"sans-serif",
    u"monospace",
    u"cursive",
    u"fantasy",
    u"system-ui",
    u"inherit",
    u"initial",
    u"unset",
    u"-apple-system",
    u"blinkmacsystemfont",
    u"ui-monospace",
};

}  // namespace

void ReadFontFamily(std::u16string_view names, FormatTables& formats, LookChange& change) {
  while (!names.empty()) {
    Value name = TakePart(names, u',');
    const auto isQuote = [](char16_t c) { return c == u'"' || c == u'\''; };
    if (!name.empty() && isQuote(name.front())) name.remove_prefix(1);
    if (!name.empty() && isQuote(name.back())) name.remove_suffix(1);
    const bool general =
        std::ranges::any_of(kGeneralFamilies, [=](Value family) { return IsName(name, family); });
    if (general || name.empty()) continue;
    FontFace face;
    for (const char16_t c : name)
      if (c >= u' ' && c != u';') face.name += c;
    change.font = formats.fonts.Intern(std::move(face));
    return;
  }
}

void ReadAlignment(std::u16string_view text, LookChange& change) {
  constexpr std::pair<Value, Alignment> kAlignments[] = {
      {u"left", Alignment::Left}, {u"start", Alignment::Left},    {u"right", Alignment::Right},
      {u"end", Alignment::Right}, {u"center", Alignment::Centre}, {u"justify", Alignment::Justify},
  };
  for (const auto& [name, alignment] : kAlignments)
    if (IsName(TrimHtml(text), name)) change.alignment = alignment;
}

void ReadStyle(std::u16string_view declarations, FormatTables& formats, LookChange& change) {
  while (!declarations.empty()) {
    Value declaration = TakePart(declarations, u';');
    const Value name = TakePart(declaration, u':');
    Declare(name, TrimHtml(declaration), formats, change);
  }
}

}  // namespace lumenote

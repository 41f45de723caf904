#include "backends/win32/assist/TextAttributes.h"

#include <algorithm>

#include "backends/win32/assist/UiaCore.h"
#include "backends/win32/assist/ViewLink.h"
#include "document/tables/TableRow.h"

namespace lumenote {

namespace {

/// The system's numbers of the lines in `Underline`.
constexpr int kLines[] = {0, 1, 2, 3, 4, 5, 6, 7, 9, 8, 11, 12, 13, 17, 14, 15, 16, 18};

int StrikesOf(unsigned effects) {
  constexpr int kSingle = 1;
  constexpr int kDouble = 3;
  if (effects & kDoubleStrike) return kDouble;
  return effects & kStrike ? kSingle : 0;
}

int ColourOf(Colour colour, int system) {
  return static_cast<int>(colour == kAutoColour ? GetSysColor(system) : colour);
}

int NumberOf(Alignment alignment) {
  constexpr Alignment kInOrder[] = {Alignment::Left, Alignment::Centre, Alignment::Right,
                                    Alignment::Justify};
  return static_cast<int>(std::ranges::find(kInOrder, alignment) - kInOrder);
}

AttributeValue ValueAt(const AccessibleText& text, Position at, TEXTATTRIBUTEID id) {
  const FormatTables& tables = text.Content().Formats();
  const CharFormat& format = tables.characters[text.Content().CharFormatAt(at)];
  const auto has = [&](unsigned effect) { return (format.effects & effect) != 0; };
  switch (id) {
    case uia::kFontName:
      return tables.fonts[format.font].name;
    case uia::kFontSize:
      return format.size / 2.0;
    case uia::kFontWeight:
      return has(kBold) ? FW_BOLD : FW_NORMAL;
    case uia::kIsItalic:
      return has(kItalic);
    case uia::kIsHidden:
      return has(kHidden);
    case uia::kIsSubscript:
      return has(kSubscript);
    case uia::kIsSuperscript:
      return has(kSuperscript);
    case uia::kUnderline:
      return kLines[static_cast<std::size_t>(format.underline)];
    case uia::kStrikethrough:
      return StrikesOf(format.effects);
    case uia::kForegroundColour:
      return ColourOf(format.colour, COLOR_WINDOWTEXT);
    case uia::kBackgroundColour:
      return ColourOf(format.highlight, COLOR_WINDOW);
    case uia::kAlignment:
      return NumberOf(tables.paragraphs[ParagraphAround(text.Content(), at).format].alignment);
    case uia::kIsReadOnly:
      return text.IsLocked();
  }
  return {};
}

/// The parts of a range, as long as `visit(part, value)` returns true; a caret has one.
template <class Visit>
void ForEachPart(const AccessibleText& text, Selection range, TEXTATTRIBUTEID id,
                 const Visit& visit) {
  Position at = range.start;
  do {
    const Position end = std::min(text.At(at, TextUnit::Run).end, range.end);
    if (!visit(Selection{at, end}, ValueAt(text, at, id))) return;
    at = std::max(end, at + 1);
  } while (at < range.end);
}

HRESULT Put(const AttributeValue& value, VARIANT& out) {
  if (const auto* number = std::get_if<int>(&value)) {
    out.vt = VT_I4;
    out.lVal = *number;
  } else if (const auto* flag = std::get_if<bool>(&value)) {
    out.vt = VT_BOOL;
    out.boolVal = *flag ? VARIANT_TRUE : VARIANT_FALSE;
  } else if (const auto* real = std::get_if<double>(&value)) {
    out.vt = VT_R8;
    out.dblVal = *real;
  } else if (const auto* name = std::get_if<std::u16string>(&value)) {
    out.vt = VT_BSTR;
    out.bstrVal = BstrOf(*name);
    return out.bstrVal ? S_OK : E_OUTOFMEMORY;
  }
  return S_OK;
}

}  // namespace

AttributeValue ValueOf(const VARIANT& value) {
  switch (value.vt) {
    case VT_I4:
      return static_cast<int>(value.lVal);
    case VT_BOOL:
      return value.boolVal != VARIANT_FALSE;
    case VT_R8:
      return value.dblVal;
    case VT_BSTR:
      return std::u16string(reinterpret_cast<const char16_t*>(value.bstrVal),
                            SysStringLen(value.bstrVal));
  }
  return {};
}

HRESULT TellValue(const AccessibleText& text, Selection range, TEXTATTRIBUTEID id, VARIANT& out) {
  out = {};
  std::optional<AttributeValue> all;
  bool differs = false;
  ForEachPart(text, range, id, [&](Selection, const AttributeValue& value) {
    differs = all && *all != value;
    all = value;
    return !differs;
  });
  const bool unknown = std::holds_alternative<std::monostate>(*all);
  if (!differs && !unknown) return Put(*all, out);
  out.vt = VT_UNKNOWN;
  return differs ? uia::MixedValue(&out.punkVal) : uia::UnknownValue(&out.punkVal);
}

std::optional<Selection> FindValue(const AccessibleText& text, Selection range,
                                   const Attribute& wanted, bool backward) {
  std::optional<Selection> found;
  bool open = false;  // the part before has the value too
  ForEachPart(text, range, wanted.id, [&](Selection part, const AttributeValue& value) {
    const bool has = value == wanted.value && part.Length() > 0;
    if (has) found = {open ? found->start : part.start, part.end};
    open = has;
    return has || !found || backward;
  });
  return found;
}

}  // namespace lumenote

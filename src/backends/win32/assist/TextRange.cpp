#include "backends/win32/assist/TextRange.h"

#include <algorithm>
#include <vector>

#include "backends/win32/assist/TextAttributes.h"
#include "document/Search.h"

namespace lumenote {

namespace {

/// By which a range knows its kind: clients hand back the objects that they were given.
constexpr IID kOwnRange = {
    0x2d1f0f5e, 0x6c0b, 0x4b57, {0x9e, 0x3a, 0x51, 0x7c, 0x8d, 0x20, 0x64, 0xb1}};

TextUnit UnitOf(uia::Unit unit) {
  switch (unit) {
    case uia::kCharacter:
      return TextUnit::Character;
    case uia::kFormat:
      return TextUnit::Run;
    case uia::kWord:
      return TextUnit::Word;
    case uia::kLine:
      return TextUnit::Line;
    case uia::kParagraph:
      return TextUnit::Paragraph;
    case uia::kPage:  // notes have none
    case uia::kDocument:
      break;
  }
  return TextUnit::All;
}

/// The last match if `backward`, else the first.
Position Find(const Document& document, std::u16string_view needle, Selection range, bool backward,
              SearchOptions options) {
  Position found = -1;
  Position at = FindText(document, needle, range.start, range.end, options);
  for (; at >= 0; at = FindText(document, needle, at + 1, range.end, options)) {
    found = at;
    if (!backward) break;
  }
  return found;
}

HRESULT Give(const std::vector<double>& values, SAFEARRAY** out) {
  *out = SafeArrayCreateVector(VT_R8, 0, static_cast<ULONG>(values.size()));
  void* data = nullptr;
  if (!*out || FAILED(SafeArrayAccessData(*out, &data))) return E_OUTOFMEMORY;
  std::ranges::copy(values, static_cast<double*>(data));
  return SafeArrayUnaccessData(*out);
}

}  // namespace

HRESULT TextRange::QueryInterface(REFIID id, void** out) {
  if (id != kOwnRange) return ComObject::QueryInterface(id, out);
  AddRef();
  *out = this;
  return S_OK;
}

ComOwner<TextRange> TextRange::Own(ITextRangeProvider* other) {
  void* own = nullptr;
  if (other) other->QueryInterface(kOwnRange, &own);
  return ComOwner<TextRange>(static_cast<TextRange*>(own));
}

template <class Answer>
HRESULT TextRange::Ask(const Answer& answer) {
  return element_->View().Ask([&](AccessibleText& text) -> HRESULT {
    range_.end = std::min(range_.end, text.Length());
    range_.start = std::min(range_.start, range_.end);
    return answer(text);
  });
}

HRESULT TextRange::Give(Selection range, ITextRangeProvider** out) const {
  *out = new (std::nothrow) TextRange(*element_, range);
  return *out ? S_OK : E_OUTOFMEMORY;
}

HRESULT TextRange::Compare(ITextRangeProvider* other, BOOL* out) {
  const ComOwner<TextRange> own = Own(other);
  *out =
      own && own->range_ == range_ && own->element_->View().Handle() == element_->View().Handle();
  return own ? S_OK : E_INVALIDARG;
}

HRESULT TextRange::CompareEndpoints(uia::Endpoint own, ITextRangeProvider* other, uia::Endpoint its,
                                    int* out) {
  const ComOwner<TextRange> range = Own(other);
  if (!range) return E_INVALIDARG;
  *out = End(own) - range->End(its);
  return S_OK;
}

HRESULT TextRange::ExpandToEnclosingUnit(uia::Unit unit) {
  return Ask([&](AccessibleText& text) {
    range_ = text.At(range_.start, UnitOf(unit));
    return S_OK;
  });
}

HRESULT TextRange::FindAttribute(TEXTATTRIBUTEID id, VARIANT value, BOOL backward,
                                 ITextRangeProvider** out) {
  *out = nullptr;
  return Ask([&](AccessibleText& text) {
    const auto found = FindValue(text, range_, {id, ValueOf(value)}, backward);
    return found ? Give(*found, out) : S_OK;
  });
}

HRESULT TextRange::FindText(BSTR wanted, BOOL backward, BOOL ignoreCase, ITextRangeProvider** out) {
  *out = nullptr;
  return Ask([&](AccessibleText& text) {
    const std::u16string_view needle(reinterpret_cast<const char16_t*>(wanted),
                                     SysStringLen(wanted));
    const Position at = Find(text.Content(), needle, range_, backward, {.matchCase = !ignoreCase});
    return at < 0 ? S_OK : Give({at, at + static_cast<Position>(needle.size())}, out);
  });
}

HRESULT TextRange::GetAttributeValue(TEXTATTRIBUTEID id, VARIANT* out) {
  return Ask([&](AccessibleText& text) { return TellValue(text, range_, id, *out); });
}

// Where the range shows, line by line.
HRESULT TextRange::GetBoundingRectangles(SAFEARRAY** out) {
  return Ask([&](AccessibleText& text) {
    POINT corner{};
    ClientToScreen(element_->View().Handle(), &corner);
    std::vector<double> numbers;
    for (const PixelRect& box : text.BoxesOf(range_))
      numbers.insert(numbers.end(),
                     {corner.x + box.left, corner.y + box.top, box.Width(), box.Height()});
    return lumenote::Give(numbers, out);
  });
}

HRESULT TextRange::GetText(int most, BSTR* out) {
  if (most < -1) return E_INVALIDARG;
  return Ask([&](AccessibleText& text) {
    const Position length = most < 0 ? range_.Length() : std::min(range_.Length(), most);
    *out = BstrOf(text.Text({range_.start, range_.start + length}));
    return *out ? S_OK : E_OUTOFMEMORY;
  });
}

HRESULT TextRange::Move(uia::Unit unit, int count, int* out) {
  return Ask([&](AccessibleText& text) {
    const TextWalk::Step step = TextWalk(text).Moved(range_, UnitOf(unit), count);
    range_ = step.range;
    *out = step.count;
    return S_OK;
  });
}

HRESULT TextRange::MoveEndpointByUnit(uia::Endpoint own, uia::Unit unit, int count, int* out) {
  return Ask([&](AccessibleText& text) {
    const TextWalk::Step step = TextWalk(text).EdgeMoved(End(own), UnitOf(unit), count);
    SetEnd(own, step.range.start);
    *out = step.count;
    return S_OK;
  });
}

HRESULT TextRange::MoveEndpointByRange(uia::Endpoint own, ITextRangeProvider* other,
                                       uia::Endpoint its) {
  const ComOwner<TextRange> range = Own(other);
  if (!range) return E_INVALIDARG;
  SetEnd(own, range->End(its));
  return S_OK;
}

// An end that passes the other one takes it along.
void TextRange::SetEnd(uia::Endpoint end, Position place) {
  if (end == uia::kStart)
    range_ = {place, std::max(place, range_.end)};
  else
    range_ = {std::min(place, range_.start), place};
}

HRESULT TextRange::Select() {
  return Ask([&](AccessibleText& text) {
    text.Select(range_.start, range_.end);
    return S_OK;
  });
}

HRESULT TextRange::ScrollIntoView(BOOL alignToTop) {
  return Ask([&](AccessibleText& text) {
    text.Reveal(alignToTop ? range_ : Selection{range_.end, range_.end});
    return S_OK;
  });
}

HRESULT TextRange::GetChildren(SAFEARRAY** out) {
  *out = SafeArrayCreateVector(VT_UNKNOWN, 0, 0);
  return *out ? S_OK : E_OUTOFMEMORY;
}

}  // namespace lumenote

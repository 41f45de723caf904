#include "backends/win32/assist/TextPattern.h"

#include "backends/win32/assist/TextRange.h"

namespace lumenote {

template <class Find>
HRESULT TextPattern::Give(const Find& find, ITextRangeProvider** out) const {
  *out = nullptr;
  return element_->View().Ask([&](AccessibleText& text) -> HRESULT {
    *out = new TextRange(*element_, find(text));
    return S_OK;
  });
}

template <class Find>
HRESULT TextPattern::GiveArray(const Find& find, SAFEARRAY** out) const {
  *out = nullptr;
  ITextRangeProvider* found = nullptr;
  if (const HRESULT result = Give(find, &found); FAILED(result)) return result;
  const ComOwner<ITextRangeProvider> range(found);
  *out = SafeArrayCreateVector(VT_UNKNOWN, 0, 1);
  LONG first = 0;
  return *out ? SafeArrayPutElement(*out, &first, found) : E_OUTOFMEMORY;
}

HRESULT TextPattern::GetSelection(SAFEARRAY** out) {
  return GiveArray([](AccessibleText& text) { return text.Selected(); }, out);
}

HRESULT TextPattern::GetVisibleRanges(SAFEARRAY** out) {
  return GiveArray([](AccessibleText& text) { return text.Visible(); }, out);
}

HRESULT TextPattern::RangeFromPoint(uia::Point at, ITextRangeProvider** out) {
  POINT point{static_cast<LONG>(at.x), static_cast<LONG>(at.y)};
  ScreenToClient(element_->View().Handle(), &point);
  const auto find = [&](AccessibleText& text) {
    const Position place = text.OffsetAt({1.0 * point.x, 1.0 * point.y});
    return Selection{place, place};
  };
  return Give(find, out);
}

HRESULT TextPattern::get_DocumentRange(ITextRangeProvider** out) {
  return Give([](AccessibleText& text) { return Selection{0, text.Length()}; }, out);
}

HRESULT TextPattern::GetCaretRange(BOOL* active, ITextRangeProvider** out) {
  *active = GetFocus() == element_->View().Handle();
  return Give([](AccessibleText& text) { return Selection{text.Caret(), text.Caret()}; }, out);
}

}  // namespace lumenote

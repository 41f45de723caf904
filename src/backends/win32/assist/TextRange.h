// A part of a view's text for UI Automation.
#pragma once
#include "backends/win32/assist/ViewElement.h"
#include "view/acts/TextWalk.h"

namespace lumenote {

/// The text may be edited while a client holds a range: its ends stay, as far as the text goes.
class TextRange final : public ComObject<ITextRangeProvider> {
 public:
  TextRange(ViewElement& element, Selection range) : element_(Shared(element)), range_(range) {}

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** out) override;

  HRESULT STDMETHODCALLTYPE Clone(ITextRangeProvider** out) override { return Give(range_, out); }
  HRESULT STDMETHODCALLTYPE Compare(ITextRangeProvider* other, BOOL* out) override;
  HRESULT STDMETHODCALLTYPE CompareEndpoints(uia::Endpoint own, ITextRangeProvider* other,
                                             uia::Endpoint its, int* out) override;
  HRESULT STDMETHODCALLTYPE ExpandToEnclosingUnit(uia::Unit unit) override;
  HRESULT STDMETHODCALLTYPE FindAttribute(TEXTATTRIBUTEID id, VARIANT value, BOOL backward,
                                          ITextRangeProvider** out) override;
  HRESULT STDMETHODCALLTYPE FindText(BSTR text, BOOL backward, BOOL ignoreCase,
                                     ITextRangeProvider** out) override;
  HRESULT STDMETHODCALLTYPE GetAttributeValue(TEXTATTRIBUTEID id, VARIANT* out) override;
  HRESULT STDMETHODCALLTYPE GetBoundingRectangles(SAFEARRAY** out) override;
  HRESULT STDMETHODCALLTYPE GetEnclosingElement(IRawElementProviderSimple** out) override {
    *out = Shared(*element_).release();
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE GetText(int most, BSTR* out) override;
  HRESULT STDMETHODCALLTYPE Move(uia::Unit unit, int count, int* out) override;
  HRESULT STDMETHODCALLTYPE MoveEndpointByUnit(uia::Endpoint own, uia::Unit unit, int count,
                                               int* out) override;
  HRESULT STDMETHODCALLTYPE MoveEndpointByRange(uia::Endpoint own, ITextRangeProvider* other,
                                                uia::Endpoint its) override;
  HRESULT STDMETHODCALLTYPE Select() override;
  HRESULT STDMETHODCALLTYPE AddToSelection() override { return uia::kInvalidOperation; }
  HRESULT STDMETHODCALLTYPE RemoveFromSelection() override { return uia::kInvalidOperation; }
  HRESULT STDMETHODCALLTYPE ScrollIntoView(BOOL alignToTop) override;
  HRESULT STDMETHODCALLTYPE GetChildren(SAFEARRAY** out) override;

 private:
  static ComOwner<TextRange> Own(ITextRangeProvider* other);
  /// Answers by `answer(AccessibleText&)`, with the range inside the text.
  template <class Answer>
  HRESULT Ask(const Answer& answer);
  HRESULT Give(Selection range, ITextRangeProvider** out) const;
  Position End(uia::Endpoint end) const { return end == uia::kStart ? range_.start : range_.end; }
  void SetEnd(uia::Endpoint end, Position place);

  ComOwner<ViewElement> element_;
  Selection range_;
};

}  // namespace lumenote

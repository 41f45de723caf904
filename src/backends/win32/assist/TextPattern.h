// A view's text in UI Automation.
#pragma once
#include "backends/win32/assist/ViewElement.h"

namespace lumenote {

/// Tells ranges of the text: all, what is selected, what is shown, the caret.
class TextPattern final : public ComObject<ITextProvider2> {
 public:
  explicit TextPattern(ViewElement& element) : element_(Shared(element)) {}

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** out) override {
    return ComObject::QueryInterface(id == __uuidof(ITextProvider) ? __uuidof(ITextProvider2) : id,
                                     out);
  }

  HRESULT STDMETHODCALLTYPE GetSelection(SAFEARRAY** out) override;
  HRESULT STDMETHODCALLTYPE GetVisibleRanges(SAFEARRAY** out) override;
  HRESULT STDMETHODCALLTYPE RangeFromChild(IRawElementProviderSimple*,
                                           ITextRangeProvider**) override {
    return E_INVALIDARG;
  }
  HRESULT STDMETHODCALLTYPE RangeFromPoint(uia::Point at, ITextRangeProvider** out) override;
  HRESULT STDMETHODCALLTYPE get_DocumentRange(ITextRangeProvider** out) override;
  HRESULT STDMETHODCALLTYPE get_SupportedTextSelection(uia::SelectionSupport* out) override {
    *out = uia::kOneSelection;
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE RangeFromAnnotation(IRawElementProviderSimple*,
                                                ITextRangeProvider**) override {
    return E_INVALIDARG;
  }
  HRESULT STDMETHODCALLTYPE GetCaretRange(BOOL* active, ITextRangeProvider** out) override;

 private:
  /// Gives the range that `find(AccessibleText&)` returns, alone or as an array of one.
  template <class Find>
  HRESULT Give(const Find& find, ITextRangeProvider** out) const;
  template <class Find>
  HRESULT GiveArray(const Find& find, SAFEARRAY** out) const;

  ComOwner<ViewElement> element_;
};

}  // namespace lumenote

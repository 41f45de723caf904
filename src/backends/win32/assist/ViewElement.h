// The element of a view's window in UI Automation.
#pragma once
#include "backends/win32/assist/ViewLink.h"
#include "backends/win32/system/ComObject.h"

namespace lumenote {

/// A document, whose text a `TextPattern` tells. What every window has, the system adds.
class ViewElement final : public ComObject<IRawElementProviderSimple> {
 public:
  explicit ViewElement(ViewLink view) : view_(std::move(view)) {}

  const ViewLink& View() const { return view_; }

  HRESULT STDMETHODCALLTYPE get_ProviderOptions(ProviderOptions* out) override;
  HRESULT STDMETHODCALLTYPE GetPatternProvider(PATTERNID id, IUnknown** out) override;
  HRESULT STDMETHODCALLTYPE GetPropertyValue(PROPERTYID id, VARIANT* out) override;
  HRESULT STDMETHODCALLTYPE get_HostRawElementProvider(IRawElementProviderSimple** out) override;

 private:
  ViewLink view_;
};

}  // namespace lumenote

#include "backends/win32/assist/ViewAccessible.h"

#include <string>

#include "backends/win32/assist/StandardAccessible.h"
#include "backends/win32/system/NativeText.h"

namespace lumenote {

namespace {

/// What the system says of any window, but for role, name, value and state. An assistive program
/// may hold it longer than the window lives.
class AccessibleView final : public StandardAccessible {
 public:
  explicit AccessibleView(ViewLink view)
      : StandardAccessible(view.Handle()), view_(std::move(view)) {}

  HRESULT STDMETHODCALLTYPE get_accName(VARIANT child, BSTR* out) override {
    if (!IsSelf(child)) return E_INVALIDARG;
    return view_.Ask([&](AccessibleText&) {
      *out = BstrOf(view_.Name());
      return *out ? S_OK : E_OUTOFMEMORY;
    });
  }
  HRESULT STDMETHODCALLTYPE get_accValue(VARIANT child, BSTR* out) override {
    constexpr Position kMost = 10'000;
    if (!IsSelf(child)) return DISP_E_MEMBERNOTFOUND;
    return view_.Ask([&](AccessibleText& text) {
      *out = BstrOf(text.Text({0, std::min(kMost, text.Length())}));
      return *out ? S_OK : E_OUTOFMEMORY;
    });
  }
  HRESULT STDMETHODCALLTYPE put_accValue(VARIANT child, BSTR value) override {
    if (!IsSelf(child)) return DISP_E_MEMBERNOTFOUND;
    return view_.Ask([&](AccessibleText& text) -> HRESULT {
      if (text.IsLocked()) return E_ACCESSDENIED;
      text.Replace({0, text.Length()}, Utf16({value, SysStringLen(value)}));
      return S_OK;
    });
  }
  HRESULT STDMETHODCALLTYPE get_accRole(VARIANT child, VARIANT* out) override {
    if (!IsSelf(child)) return E_INVALIDARG;
    out->vt = VT_I4;
    out->lVal = ROLE_SYSTEM_TEXT;
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE get_accState(VARIANT child, VARIANT* out) override {
    const HRESULT result = StandardAccessible::get_accState(child, out);
    const std::shared_ptr<NoteView> view = view_.Hold();
    if (SUCCEEDED(result) && view && view->IsLocked()) out->lVal |= STATE_SYSTEM_READONLY;
    return result;
  }

 private:
  ViewLink view_;
};

}  // namespace

LRESULT AnswerAccessible(const ViewLink& view, WPARAM w) {
  return ComOwner<AccessibleView>(new AccessibleView(view))->Answer(w);
}

}  // namespace lumenote

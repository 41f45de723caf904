#include "backends/win32/assist/ViewAccessible.h"

#include <string>

#include "backends/win32/system/ComObject.h"
#include "backends/win32/system/NativeText.h"

// After the system's own header.
#include <oleacc.h>

namespace lumenote {

namespace {

bool IsSelf(const VARIANT& child) { return child.vt == VT_I4 && child.lVal == CHILDID_SELF; }

/// What the system says of any window, but for role, name, value and state. An assistive program
/// may hold it longer than the window lives.
class AccessibleView final : public ComObject<IAccessible> {
 public:
  explicit AccessibleView(ViewLink view) : view_(std::move(view)) {
    void* made = nullptr;
    CreateStdAccessibleObject(view_.Handle(), OBJID_CLIENT, __uuidof(IAccessible), &made);
    rest_.reset(static_cast<IAccessible*>(made));
  }
  bool IsWhole() const { return rest_ != nullptr; }

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** out) override {
    return ComObject::QueryInterface(id == IID_IDispatch ? __uuidof(IAccessible) : id, out);
  }

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
    const HRESULT result = rest_->get_accState(child, out);
    const std::shared_ptr<NoteView> view = view_.Hold();
    if (SUCCEEDED(result) && view && view->IsLocked()) out->lVal |= STATE_SYSTEM_READONLY;
    return result;
  }

  HRESULT STDMETHODCALLTYPE get_accParent(IDispatch** out) override {
    return rest_->get_accParent(out);
  }
  HRESULT STDMETHODCALLTYPE get_accChildCount(LONG* out) override {
    return rest_->get_accChildCount(out);
  }
  HRESULT STDMETHODCALLTYPE get_accChild(VARIANT child, IDispatch** out) override {
    return rest_->get_accChild(child, out);
  }
  HRESULT STDMETHODCALLTYPE get_accDescription(VARIANT child, BSTR* out) override {
    return rest_->get_accDescription(child, out);
  }
  HRESULT STDMETHODCALLTYPE get_accHelp(VARIANT child, BSTR* out) override {
    return rest_->get_accHelp(child, out);
  }
  HRESULT STDMETHODCALLTYPE get_accHelpTopic(BSTR* file, VARIANT child, LONG* topic) override {
    return rest_->get_accHelpTopic(file, child, topic);
  }
  HRESULT STDMETHODCALLTYPE get_accKeyboardShortcut(VARIANT child, BSTR* out) override {
    return rest_->get_accKeyboardShortcut(child, out);
  }
  HRESULT STDMETHODCALLTYPE get_accFocus(VARIANT* out) override { return rest_->get_accFocus(out); }
  HRESULT STDMETHODCALLTYPE get_accSelection(VARIANT* out) override {
    return rest_->get_accSelection(out);
  }
  HRESULT STDMETHODCALLTYPE get_accDefaultAction(VARIANT child, BSTR* out) override {
    return rest_->get_accDefaultAction(child, out);
  }
  HRESULT STDMETHODCALLTYPE accSelect(LONG flags, VARIANT child) override {
    return rest_->accSelect(flags, child);
  }
  HRESULT STDMETHODCALLTYPE accLocation(LONG* left, LONG* top, LONG* width, LONG* height,
                                        VARIANT child) override {
    return rest_->accLocation(left, top, width, height, child);
  }
  HRESULT STDMETHODCALLTYPE accNavigate(LONG way, VARIANT start, VARIANT* out) override {
    return rest_->accNavigate(way, start, out);
  }
  HRESULT STDMETHODCALLTYPE accHitTest(LONG left, LONG top, VARIANT* out) override {
    return rest_->accHitTest(left, top, out);
  }
  HRESULT STDMETHODCALLTYPE accDoDefaultAction(VARIANT child) override {
    return rest_->accDoDefaultAction(child);
  }
  HRESULT STDMETHODCALLTYPE put_accName(VARIANT, BSTR) override { return DISP_E_MEMBERNOTFOUND; }

  HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* out) override {
    return rest_->GetTypeInfoCount(out);
  }
  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT number, LCID locale, ITypeInfo** out) override {
    return rest_->GetTypeInfo(number, locale, out);
  }
  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID id, LPOLESTR* names, UINT count, LCID locale,
                                          DISPID* out) override {
    return rest_->GetIDsOfNames(id, names, count, locale, out);
  }
  HRESULT STDMETHODCALLTYPE Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*,
                                   UINT*) override {
    return E_NOTIMPL;
  }

 private:
  ViewLink view_;
  ComOwner<IAccessible> rest_;
};

}  // namespace

LRESULT AnswerAccessible(const ViewLink& view, WPARAM w) {
  const ComOwner<AccessibleView> object(new AccessibleView(view));
  return object->IsWhole() ? LresultFromObject(__uuidof(IAccessible), w, object.get()) : 0;
}

}  // namespace lumenote

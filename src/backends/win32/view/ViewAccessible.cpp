#include "backends/win32/view/ViewAccessible.h"

#include <new>
#include <string>

#include "backends/win32/toolkit/NativeText.h"
#include "backends/win32/toolkit/Window.h"
#include "backends/win32/view/ComObject.h"
#include "surface/DocumentSurface.h"

// After the system's own header.
#include <oleacc.h>

namespace lumenote {

namespace {

BSTR Told(std::u16string_view text) {
  return SysAllocStringLen(reinterpret_cast<const wchar_t*>(text.data()),
                           static_cast<UINT>(text.size()));
}

bool IsSelf(const VARIANT& child) { return child.vt == VT_I4 && child.lVal == CHILDID_SELF; }

/// What the system says of any window, but for role, name, value and state. An assistive program
/// may hold it longer than the window lives.
class AccessibleView final : public ComObject<IAccessible> {
 public:
  AccessibleView(HWND window, NoteView& view, std::weak_ptr<Window> owner)
      : window_(window), view_(view), owner_(std::move(owner)) {
    void* made = nullptr;
    CreateStdAccessibleObject(window, OBJID_CLIENT, IID_IAccessible, &made);
    rest_.reset(static_cast<IAccessible*>(made));
  }
  bool IsWhole() const { return rest_ != nullptr; }

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** out) override {
    return ComObject::QueryInterface(id == IID_IDispatch ? IID_IAccessible : id, out);
  }

  HRESULT STDMETHODCALLTYPE get_accName(VARIANT child, BSTR* out) override {
    if (!IsSelf(child)) return E_INVALIDARG;
    const HWND label = GetWindow(window_, GW_HWNDPREV);
    *out = Told(TextOf(label ? label : GetAncestor(window_, GA_ROOT)));
    return *out ? S_OK : E_OUTOFMEMORY;
  }
  HRESULT STDMETHODCALLTYPE get_accValue(VARIANT child, BSTR* out) override {
    constexpr Position kMost = 10'000;
    const std::shared_ptr<Window> alive = owner_.lock();
    if (!IsSelf(child) || !alive || !view_.IsAttached()) return DISP_E_MEMBERNOTFOUND;
    try {
      *out = Told(view_.Surface().Content().Text(0, kMost));
    } catch (const std::bad_alloc&) {
      *out = nullptr;
    }
    return *out ? S_OK : E_OUTOFMEMORY;
  }
  HRESULT STDMETHODCALLTYPE get_accRole(VARIANT child, VARIANT* out) override {
    if (!IsSelf(child)) return E_INVALIDARG;
    out->vt = VT_I4;
    out->lVal = ROLE_SYSTEM_TEXT;
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE get_accState(VARIANT child, VARIANT* out) override {
    const HRESULT result = rest_->get_accState(child, out);
    const std::shared_ptr<Window> alive = owner_.lock();
    if (SUCCEEDED(result) && alive && view_.IsAttached() && view_.IsLocked())
      out->lVal |= STATE_SYSTEM_READONLY;
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
  HRESULT STDMETHODCALLTYPE put_accValue(VARIANT, BSTR) override { return DISP_E_MEMBERNOTFOUND; }

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
  HWND window_;
  NoteView& view_;  // while the owner lives
  std::weak_ptr<Window> owner_;
  ComOwner<IAccessible> rest_;
};

}  // namespace

LRESULT AnswerAccessible(HWND window, NoteView& view, WPARAM w) {
  const ComOwner<AccessibleView> object(
      new AccessibleView(window, view, Window::Of(window)->weak_from_this()));
  return object->IsWhole() ? LresultFromObject(IID_IAccessible, w, object.get()) : 0;
}

void AnnounceChange(HWND window) {
  NotifyWinEvent(EVENT_OBJECT_VALUECHANGE, window, OBJID_CLIENT, CHILDID_SELF);
}

void AnnounceSelection(HWND window) {
  NotifyWinEvent(EVENT_OBJECT_TEXTSELECTIONCHANGED, window, OBJID_CLIENT, CHILDID_SELF);
}

}  // namespace lumenote

// What the system says of a window by its older interface.
#pragma once
#include "backends/win32/system/ComObject.h"

// After the system's own header.
#include <oleacc.h>

namespace lumenote {

/// To be derived from by what says something else. An assistive program may hold it longer than the
/// window lives: the system then refuses each question.
class StandardAccessible : public ComObject<IAccessible> {
 public:
  explicit StandardAccessible(HWND window);

  /// Answers a WM_GETOBJECT for the client area of the window by this.
  LRESULT Answer(WPARAM w);

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** out) override {
    return ComObject::QueryInterface(id == IID_IDispatch ? __uuidof(IAccessible) : id, out);
  }

  HRESULT STDMETHODCALLTYPE get_accName(VARIANT child, BSTR* out) override {
    return rest_->get_accName(child, out);
  }
  HRESULT STDMETHODCALLTYPE get_accValue(VARIANT child, BSTR* out) override {
    return rest_->get_accValue(child, out);
  }
  HRESULT STDMETHODCALLTYPE put_accValue(VARIANT child, BSTR value) override {
    return rest_->put_accValue(child, value);
  }
  HRESULT STDMETHODCALLTYPE get_accRole(VARIANT child, VARIANT* out) override {
    return rest_->get_accRole(child, out);
  }
  HRESULT STDMETHODCALLTYPE get_accState(VARIANT child, VARIANT* out) override {
    return rest_->get_accState(child, out);
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

 protected:
  /// Whether a question is about the window as a whole.
  static bool IsSelf(const VARIANT& child) {
    return child.vt == VT_I4 && child.lVal == CHILDID_SELF;
  }

 private:
  ComOwner<IAccessible> rest_;
};

}  // namespace lumenote

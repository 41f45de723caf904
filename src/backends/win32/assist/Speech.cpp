#include "backends/win32/assist/Speech.h"

#include <new>

#include "backends/win32/assist/StandardAccessible.h"
#include "backends/win32/assist/ViewLink.h"

namespace lumenote {

namespace {

/// As it was when a program asked for it.
class SpeakingWindow final : public StandardAccessible {
 public:
  SpeakingWindow(HWND window, Speech speech)
      : StandardAccessible(window), speech_(std::move(speech)) {}

  HRESULT STDMETHODCALLTYPE get_accName(VARIANT child, BSTR* out) override {
    if (!IsSelf(child)) return StandardAccessible::get_accName(child, out);
    *out = speech_.name.empty() ? nullptr : BstrOf(speech_.name);
    return *out ? S_OK : S_FALSE;
  }
  HRESULT STDMETHODCALLTYPE get_accRole(VARIANT child, VARIANT* out) override {
    if (!IsSelf(child)) return StandardAccessible::get_accRole(child, out);
    out->vt = VT_I4;
    out->lVal = speech_.role;
    return S_OK;
  }

 private:
  Speech speech_;
};

}  // namespace

LRESULT Speak(HWND window, Speech speech, const Message& question) {
  return ComOwner<SpeakingWindow>(new SpeakingWindow(window, std::move(speech)))
      ->Answer(question.w);
}

}  // namespace lumenote

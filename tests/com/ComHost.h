// A C++ host that calls the registered control through its vtable.
#pragma once
#include <functional>
#include <gtest/gtest.h>
#include <string>
#include <string_view>

#include "EditorUser.h"
#include "hosts/com/support/Bstr.h"
#include "hosts/com/support/ComPtr.h"
#include "hosts/com/support/Ole.h"
#include "hosts/com/typelib/ICoBxRtf.h"
#include "tests/win32/Meanwhile.h"

namespace lumenote {

/// The thread's apartment.
class Apartment {
 public:
  Apartment() { OleInitialize(nullptr); }
  ~Apartment() { OleUninitialize(); }
  Apartment(const Apartment&) = delete;
  Apartment& operator=(const Apartment&) = delete;
};

using Control = ComPtr<ICoBxRtf>;

inline Control Create() {
  CLSID id;
  Control made;
  EXPECT_EQ(CLSIDFromProgID(kProgId, &id), S_OK);
  EXPECT_EQ(CoCreateInstance(id, nullptr, CLSCTX_INPROC_SERVER, kInterfaceId, made.OutVoid()),
            S_OK);
  return made;
}

inline constexpr const char16_t* kTitle = u"Essai COM";
inline HWND FindEditor() { return FindEditor(L"Essai COM"); }
/// A user of the editor that has that title.
inline EditorUser UserOfEditor(std::wstring text) { return {L"Essai COM", std::move(text)}; }

/// One whose editor can be opened on a note.
inline Control CreateWith(std::u16string_view note) {
  const Control made = Create();
  made->put_pTitreFenêtre(Bstr(kTitle).Get());
  made->put_pCouleurFen(Bstr(u"0").Get());
  made->put_pStrOrchm(Bstr(note).Get());
  return made;
}

inline std::u16string NoteOf(const Control& control) {
  BSTR text = nullptr;
  EXPECT_EQ(control->get_pStrOrchm(&text), S_OK);
  const std::u16string note = FromBstr(text);
  SysFreeString(text);
  return note;
}

/// Dispatches the thread's messages until a condition holds.
inline void RunUntil(const std::function<bool()>& done) {
  MSG message;
  while (!done() && GetMessageW(&message, nullptr, 0, 0) > 0) DispatchMessageW(&message);
}

class ComTest : public testing::Test {
 protected:
  const Apartment apartment_;
};

}  // namespace lumenote

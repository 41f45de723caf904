// A C++ host that calls the registered control through its vtable.
#pragma once
#include <functional>
#include <gtest/gtest.h>
#include <string>
#include <string_view>

#include "hosts/com/support/Bstr.h"
#include "hosts/com/support/ComPtr.h"
#include "hosts/com/support/Ole.h"
#include "hosts/com/typelib/ICoBxRtf.h"

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

/// One whose editor can be opened on a note.
inline Control CreateWith(std::u16string_view note) {
  const Control made = Create();
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

/// Runs a function once, from the thread's message loop.
class Later {
 public:
  explicit Later(std::function<void()> act) : act_(std::move(act)) {
    current_ = this;
    timer_ = SetTimer(nullptr, 0, 10, &Later::Tick);
  }
  ~Later() { KillTimer(nullptr, timer_); }
  Later(const Later&) = delete;
  Later& operator=(const Later&) = delete;

 private:
  static void CALLBACK Tick(HWND, UINT, UINT_PTR timer, DWORD) {
    KillTimer(nullptr, timer);
    current_->act_();
  }

  static inline Later* current_ = nullptr;
  std::function<void()> act_;
  UINT_PTR timer_ = 0;
};

class ComTest : public testing::Test {
 protected:
  const Apartment apartment_;
};

}  // namespace lumenote

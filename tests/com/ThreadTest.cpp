// Several apartments: each uses its own controls; others reach them through the system's proxy
// alone.
#include <atomic>
#include <mutex>
#include <thread>
#include <utility>
#include <vector>

#include "ComHost.h"

namespace lumenote {
namespace {

using ThreadTest = ComTest;

constexpr HRESULT kWrongThread = MAKE_HRESULT(1, FACILITY_CONTROL, 5);

TEST_F(ThreadTest, AnotherThreadIsRefused) {
  const Control control = CreateWith(u"note");
  HRESULT result = S_OK;
  std::thread([&] { result = control->put_pNomAppli(nullptr); }).join();
  EXPECT_EQ(result, kWrongThread);
}

/// Source and description of the error of a call by name. Those of other calls get lost in wine's
/// proxies.
std::pair<std::u16string, std::u16string> ErrorOf(const Control& control, std::wstring method) {
  wchar_t* names[] = {method.data()};
  DISPID id = DISPID_UNKNOWN;
  control->GetIDsOfNames(IID_NULL, names, 1, LOCALE_USER_DEFAULT, &id);
  DISPPARAMS none{};
  EXCEPINFO error{};
  EXPECT_EQ(control->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD, &none, nullptr,
                            &error, nullptr),
            DISP_E_EXCEPTION);
  const std::pair told(FromBstr(error.bstrSource), FromBstr(error.bstrDescription));
  SysFreeString(error.bstrSource);
  SysFreeString(error.bstrDescription);
  return told;
}

TEST_F(ThreadTest, AProxyCarriesCallsAndErrors) {
  const Control control = CreateWith(u"note");
  IStream* passed = nullptr;
  ASSERT_EQ(CoMarshalInterThreadInterfaceInStream(kInterfaceId, control.Get(), &passed), S_OK);
  std::atomic<bool> done = false;
  std::u16string read;
  std::pair<std::u16string, std::u16string> told;
  HRESULT shown = S_OK;
  std::thread other([&] {
    const Apartment apartment;
    Control proxy;
    if (CoGetInterfaceAndReleaseStream(passed, kInterfaceId, proxy.OutVoid()) == S_OK) {
      EXPECT_EQ(proxy->ShowMicroEdit(0), S_OK);
      read = NoteOf(proxy);
      proxy->put_pCouleurFen(Bstr(u"rouge").Get());
      shown = proxy->ShowMicroEdit(0);
      told = ErrorOf(proxy, L"ShowMicroEdit");
    }
    proxy = Control();
    done = true;
  });
  const Meanwhile wake([] { return false; });
  RunUntil([&] { return done.load(); });
  other.join();
  EXPECT_EQ(read, u"note");
  EXPECT_EQ(shown, MAKE_HRESULT(1, FACILITY_CONTROL, 13));
  EXPECT_EQ(told.first, u"Lumenote.CoBxRtf.pCouleurFen");
  EXPECT_EQ(told.second, u"Incompatibilité de type");
}

// Each keeps its control while the others work. They take turns, since wine's Uniscribe shares what
// it knows of a font between threads without a lock.
TEST_F(ThreadTest, ApartmentsLiveSideBySide) {
  constexpr int kThreads = 3, kRounds = 10;
  std::mutex turn;
  const auto work = [&turn] {
    const Apartment apartment;
    Control control;
    for (int i = 0; i < kRounds; ++i) {
      const std::lock_guard lock(turn);
      control = CreateWith(u"{\\rtf1 Abies \\b alba\\b0\\par Picea}");
      EXPECT_EQ(control->ShowMicroEdit(0), S_OK);
      EXPECT_NE(NoteOf(control).find(u"alba"), std::u16string::npos);
    }
    const std::lock_guard lock(turn);
    control = Control();
  };
  std::vector<std::thread> threads;
  for (int i = 0; i < kThreads; ++i) threads.emplace_back(work);
  for (std::thread& thread : threads) thread.join();
}

}  // namespace
}  // namespace lumenote

// What stays behind: of a hundred controls, and of the DLL itself.
#include <cstdint>
#include <utility>

#include "ComHost.h"

namespace lumenote {
namespace {

using LifeTest = ComTest;

struct Held {
  int handles = 0;
  int windows = 0;
};

/// The system's own count is not to be had everywhere.
int OpenHandles() {
  constexpr std::uintptr_t kStep = 4, kEnd = 0x10000;
  int open = 0;
  DWORD flags = 0;
  for (std::uintptr_t handle = kStep; handle < kEnd; handle += kStep)
    open += GetHandleInformation(reinterpret_cast<HANDLE>(handle), &flags) != FALSE;
  return open;
}

Held HeldNow() {
  Held held;
  held.handles = OpenHandles();
  const auto count = [](HWND, LPARAM windows) -> BOOL {
    ++*reinterpret_cast<int*>(windows);
    return TRUE;
  };
  EnumThreadWindows(GetCurrentThreadId(), count, reinterpret_cast<LPARAM>(&held.windows));
  return held;
}

/// Whether a hundred runs hold more afterwards. The first few may fill caches.
bool Leaks(const std::function<void()>& round) {
  constexpr int kWarm = 3, kRounds = 100;
  for (int i = 0; i < kWarm; ++i) round();
  const Held before = HeldNow();
  for (int i = 0; i < kRounds; ++i) round();
  const Held after = HeldNow();
  return after.handles > before.handles + kRounds / 10 || after.windows > before.windows;
}

TEST_F(LifeTest, AHundredEditorsLeaveNothing) {
  const auto round = [] {
    const Control control = CreateWith(u"note");
    EditorUser user = UserOfEditor(L"é");
    const Meanwhile meanwhile([&] { return user.Step(); });
    EXPECT_EQ(control->ShowMicroEdit(1), S_OK);
    EXPECT_EQ(NoteOf(control), u"énote");
  };
  EXPECT_FALSE(Leaks(round));
  EXPECT_TRUE(Leaks([] { CreateEventW(nullptr, FALSE, FALSE, nullptr); }));
  EXPECT_TRUE(Leaks([] {
    CreateWindowExW(0, L"STATIC", L"", 0, 0, 0, 1, 1, nullptr, nullptr, nullptr, nullptr);
  }));
}

/// The DLL as the system loads it for a host.
class LoadedDll {
 public:
  LoadedDll() {
    Create();  // by the registry, so that its path is known
    wchar_t path[MAX_PATH];
    GetModuleFileNameW(GetModuleHandleW(L"Lumenote.dll"), path, MAX_PATH);
    module_ = LoadLibraryW(path);
  }
  ~LoadedDll() { FreeLibrary(module_); }
  LoadedDll(const LoadedDll&) = delete;
  LoadedDll& operator=(const LoadedDll&) = delete;

  bool CanGo() const { return Function<HRESULT(WINAPI*)()>("DllCanUnloadNow")() == S_OK; }
  ComPtr<IClassFactory> Factory() const {
    ComPtr<IClassFactory> factory;
    Function<HRESULT(WINAPI*)(REFCLSID, REFIID, void**)>("DllGetClassObject")(
        kClassId, IID_IClassFactory, factory.OutVoid());
    return factory;
  }

 private:
  template <class Type>
  Type Function(const char* name) const {
    return reinterpret_cast<Type>(reinterpret_cast<void*>(GetProcAddress(module_, name)));
  }

  HMODULE module_ = nullptr;
};

TEST_F(LifeTest, TheDllKnowsWhenItIsNotUsed) {
  const LoadedDll dll;
  ASSERT_TRUE(dll.CanGo());
  {
    const auto factory = dll.Factory();
    EXPECT_FALSE(dll.CanGo());
    factory->LockServer(TRUE);
  }
  EXPECT_FALSE(dll.CanGo());
  dll.Factory()->LockServer(FALSE);
  EXPECT_TRUE(dll.CanGo());
  Control control = CreateWith(u"note");
  control->ShowMicroEdit(0);
  EXPECT_FALSE(dll.CanGo());
  control = Control();  // closes the editor
  EXPECT_TRUE(dll.CanGo());
}

bool IsLoadedAfterCleaning() {
  for (int i = 0; i < 2; ++i) CoFreeUnusedLibrariesEx(0, 0);  // notes what is unused, then frees it
  return GetModuleHandleW(L"Lumenote.dll") != nullptr;
}

TEST_F(LifeTest, TheSystemUnloadsTheDllBetweenEditorsOnly) {
  for (int round = 0; round < 3; ++round) {
    Control control = CreateWith(u"note");
    control->ShowMicroEdit(0);
    EXPECT_TRUE(IsLoadedAfterCleaning());
    control = Control();
    EXPECT_FALSE(IsLoadedAfterCleaning());
  }
}

std::wstring Documents() {
  wchar_t folder[MAX_PATH];
  SHGetFolderPathW(nullptr, CSIDL_PERSONAL, nullptr, 0, folder);
  return folder;
}

/// Removes the rescue copies; how many there were.
int RescueCopies() {
  const std::wstring folder = Documents() + L"\\";
  WIN32_FIND_DATAW found;
  int count = 0;
  const HANDLE search = FindFirstFileW((folder + L"Secours_*").c_str(), &found);
  if (search == INVALID_HANDLE_VALUE) return 0;
  do count += DeleteFileW((folder + found.cFileName).c_str()) != FALSE;
  while (FindNextFileW(search, &found));
  FindClose(search);
  return count;
}

/// A host lets go of a control whose editor holds an edited note, and of the DLL.
TEST_F(LifeTest, LettingGoOfAnEditedNoteKeepsIt) {
  const LoadedDll dll;
  RescueCopies();
  Control control = CreateWith(u"note");
  ICoBxRtf* const going = control.Get();
  control->ShowMicroEdit(0);
  SendMessageW(FindChild(FindEditor(), L"LumenoteSurface"), WM_CHAR, L'x', 1);
  EditorUser user = UserOfEditor(L"");
  bool asked = false;
  const Meanwhile meanwhile([&] {
    if (BoxOver(FindEditor()) && !std::exchange(asked, true)) {
      EXPECT_EQ(going->put_pNomAppli(nullptr), CO_E_OBJNOTCONNECTED);
      EXPECT_FALSE(dll.CanGo());
    }
    return user.Step();
  });
  control = Control();
  EXPECT_TRUE(asked);
  EXPECT_FALSE(FindEditor());
  EXPECT_EQ(RescueCopies(), 1);
  EXPECT_TRUE(dll.CanGo());
}

TEST_F(LifeTest, AFactoryRefusesWhatItCannotMake) {
  const LoadedDll dll;
  const auto factory = dll.Factory();
  void* made = nullptr;
  EXPECT_EQ(factory->CreateInstance(factory.Get(), IID_IUnknown, &made), CLASS_E_NOAGGREGATION);
  EXPECT_EQ(factory->CreateInstance(nullptr, IID_IOleWindow, &made), E_NOINTERFACE);
  EXPECT_EQ(made, nullptr);
}

}  // namespace
}  // namespace lumenote

#include "Registration.h"

#include <string>
#include <vector>

#include "../object/ContainedControl.h"
#include "../object/Resources.h"
#include "../support/Errors.h"
#include "../support/Module.h"
#include "../typelib/Identity.h"
#include "ClassesKey.h"

namespace lumenote {

namespace {

constexpr bool kWide = sizeof(void*) == 8;
constexpr const wchar_t* kSystem = kWide ? L"win64" : L"win32";
constexpr REGSAM kOtherView = kWide ? KEY_WOW64_32KEY : KEY_WOW64_64KEY;

// The system's: what kind of class this is, and who carries its calls to other apartments.
constexpr const wchar_t* kControlCategory = L"{40FC6ED4-2438-11CF-A3DB-080036F12502}";
constexpr const wchar_t* kScriptCategory = L"{40FC6ED5-2438-11CF-A3DB-080036F12502}";
constexpr const wchar_t* kAutomationProxy = L"{00020424-0000-0000-C000-000000000046}";

struct Entry {
  std::wstring path;
  std::wstring name;
  std::wstring value;
};

std::wstring Text(const GUID& id) {
  wchar_t text[39];
  StringFromGUID2(id, text, 39);
  return text;
}

std::wstring ClassPath() { return L"CLSID\\" + Text(kClassId); }
std::wstring InterfacePath() { return L"Interface\\" + Text(kInterfaceId); }
std::wstring LibraryPath() { return L"TypeLib\\" + Text(kLibraryId); }
std::wstring Version() {
  return std::to_wstring(kMajorVersion) + L"." + std::to_wstring(kMinorVersion);
}

std::vector<Entry> ClassEntries() {
  const std::wstring key = ClassPath(), dll = ModulePath();
  return {{key, L"", kDescription},
          {key + L"\\InprocServer32", L"", dll},
          {key + L"\\InprocServer32", L"ThreadingModel", L"Apartment"},
          {key + L"\\ProgID", L"", kVersionedProgId},
          {key + L"\\VersionIndependentProgID", L"", kProgId},
          {key + L"\\TypeLib", L"", Text(kLibraryId)},
          {key + L"\\Version", L"", Version()},
          {key + L"\\Control", L"", L""},
          {key + L"\\Programmable", L"", L""},
          {key + L"\\MiscStatus", L"", L"0"},
          {key + L"\\MiscStatus\\1", L"", std::to_wstring(kMiscStatus)},
          {key + L"\\ToolboxBitmap32", L"", dll + L", " + std::to_wstring(LUMENOTE_TOOLBOX_BITMAP)},
          {key + L"\\Implemented Categories\\" + kControlCategory, L"", L""},
          {key + L"\\Implemented Categories\\" + kScriptCategory, L"", L""}};
}

std::vector<Entry> NameEntries() {
  const std::wstring name = kProgId, versioned = kVersionedProgId;
  return {{name, L"", kDescription},
          {name + L"\\CLSID", L"", Text(kClassId)},
          {name + L"\\CurVer", L"", versioned},
          {versioned, L"", kDescription},
          {versioned + L"\\CLSID", L"", Text(kClassId)}};
}

std::vector<Entry> TypeEntries() {
  const std::wstring library = LibraryPath() + L"\\" + Version(), type = InterfacePath();
  return {{library, L"", kLibraryName},
          {library + L"\\0\\" + kSystem, L"", ModulePath()},
          {library + L"\\FLAGS", L"", L"0"},
          {type, L"", kInterfaceName},
          {type + L"\\ProxyStubClsid32", L"", kAutomationProxy},
          {type + L"\\TypeLib", L"", Text(kLibraryId)},
          {type + L"\\TypeLib", L"Version", Version()}};
}

void Enter(const ClassesKey& classes) {
  for (const auto& entries : {ClassEntries(), NameEntries(), TypeEntries()})
    for (const Entry& entry : entries) classes.Write(entry.path, entry.name, entry.value);
}

/// Names and library are one for both widths.
void RemoveShared(const ClassesKey& classes) {
  if (classes.Has(ClassPath(), kOtherView)) return;
  for (const std::wstring& path :
       {std::wstring(kProgId), std::wstring(kVersionedProgId), LibraryPath()})
    classes.Remove(path);
}

void RemoveFrom(HKEY root) {
  const ClassesKey classes(root);
  if (!classes.Has(ClassPath())) return;
  classes.Remove(InterfacePath());
  classes.Remove(LibraryPath() + L"\\" + Version() + L"\\0\\" + kSystem);
  classes.Remove(ClassPath());
  RemoveShared(classes);
}

/// Runs a function; an error of the registry becomes a result code.
template <class Function>
HRESULT WithResult(Function function) {
  return Guarded([&] {
    try {
      function();
      return S_OK;
    } catch (const RegistryError& error) {
      return HRESULT_FROM_WIN32(error.status);
    }
  });
}

/// All or nothing.
HRESULT RegisterIn(HKEY root) {
  const HRESULT entered = WithResult([&] { Enter(ClassesKey(root)); });
  if (FAILED(entered)) WithResult([&] { RemoveFrom(root); });
  return entered;
}

}  // namespace

// An older registration of the user's would win.
HRESULT Register() {
  const HRESULT entered = RegisterIn(HKEY_LOCAL_MACHINE);
  if (entered == E_ACCESSDENIED) return RegisterForUser();
  return SUCCEEDED(entered) ? UnregisterForUser() : entered;
}

HRESULT RegisterForUser() { return RegisterIn(HKEY_CURRENT_USER); }

HRESULT UnregisterForUser() {
  return WithResult([] { RemoveFrom(HKEY_CURRENT_USER); });
}

HRESULT Unregister() {
  return WithResult([] {
    RemoveFrom(HKEY_CURRENT_USER);
    RemoveFrom(HKEY_LOCAL_MACHINE);
  });
}

}  // namespace lumenote

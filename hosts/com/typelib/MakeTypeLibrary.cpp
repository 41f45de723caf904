// Writes the type library from the table of members.   usage: MakeTypeLibrary FILE win32|win64
//
// The system's own functions do it, because type compilers refuse accented names.
#include <array>
#include <cstdint>
#include <cstring>
#include <fstream>
#include <iostream>
#include <stdexcept>
#include <string>

#include "../support/ComPtr.h"
#include "ICoBxRtf.h"

using namespace lumenote;

namespace {

enum class Kind { Write, Read, Method };

struct Member {
  MEMBERID id;
  const wchar_t* name;
  const wchar_t* help;
  Kind kind;
};

constexpr Member kMembers[] = {
#define LUMENOTE_WRITE(id, name, help) {id, L## #name, help, Kind::Write},
#define LUMENOTE_READ(id, name, help) {id, L## #name, help, Kind::Read},
#define LUMENOTE_METHOD(id, name, help) {id, L## #name, help, Kind::Method},
    LUMENOTE_MEMBERS(LUMENOTE_WRITE, LUMENOTE_READ, LUMENOTE_METHOD)
#undef LUMENOTE_WRITE
#undef LUMENOTE_READ
#undef LUMENOTE_METHOD
};

void Check(HRESULT result) {
  if (FAILED(result)) throw std::runtime_error("error " + std::to_string(unsigned(result)));
}

/// The system's functions take texts that they do not change as changeable.
wchar_t* Changeable(const wchar_t* text) { return const_cast<wchar_t*>(text); }

constexpr INVOKEKIND InvokeKindOf(Kind kind) {
  if (kind == Kind::Write) return INVOKE_PROPERTYPUT;
  return kind == Kind::Read ? INVOKE_PROPERTYGET : INVOKE_FUNC;
}

/// The one parameter of a member, with what its type points to.
class Parameter {
 public:
  explicit Parameter(Kind kind) {
    description_.tdesc.vt = kind == Kind::Method ? VT_I4 : VT_BSTR;
    description_.paramdesc.wParamFlags = PARAMFLAG_FIN;
    if (kind == Kind::Read) MakeResult();
    if (kind == Kind::Method) MakeOptional();
  }
  Parameter(const Parameter&) = delete;
  Parameter& operator=(const Parameter&) = delete;

  ELEMDESC* Description() { return &description_; }

 private:
  void MakeResult() {
    text_.vt = VT_BSTR;
    description_.tdesc.vt = VT_PTR;
    description_.tdesc.lptdesc = &text_;
    description_.paramdesc.wParamFlags = PARAMFLAG_FOUT | PARAMFLAG_FRETVAL;
  }
  void MakeOptional() {
    default_.cBytes = sizeof default_;
    default_.varDefaultValue.vt = VT_I4;
    description_.paramdesc.pparamdescex = &default_;
    description_.paramdesc.wParamFlags |= PARAMFLAG_FOPT | PARAMFLAG_FHASDEFAULT;
  }

  ELEMDESC description_{};
  TYPEDESC text_{};
  PARAMDESCEX default_{};
};

void AddMember(ICreateTypeInfo& made, UINT index, const Member& member) {
  Parameter parameter(member.kind);
  FUNCDESC function{};
  function.memid = member.id;
  function.funckind = FUNC_PUREVIRTUAL;
  function.invkind = InvokeKindOf(member.kind);
  function.callconv = CC_STDCALL;
  function.cParams = 1;
  function.lprgelemdescParam = parameter.Description();
  function.elemdescFunc.tdesc.vt = VT_HRESULT;
  Check(made.AddFuncDesc(index, &function));
  std::array names = {Changeable(member.name), Changeable(L"mode")};
  // A property's value has no name.
  Check(made.SetFuncAndParamNames(index, names.data(), member.kind == Kind::Method ? 2 : 1));
  Check(made.SetFuncDocString(index, Changeable(member.help)));
}

/// The interface that every dual one inherits.
ComPtr<ITypeInfo> AutomationBase() {
  ComPtr<ITypeLib> standard;
  Check(LoadRegTypeLib(IID_StdOle, 2, 0, 0, standard.Out()));
  ComPtr<ITypeInfo> base;
  Check(standard->GetTypeInfoOfGuid(IID_IDispatch, base.Out()));
  return base;
}

ComPtr<ICreateTypeInfo> Add(ICreateTypeLib2& library, const wchar_t* name, TYPEKIND kind,
                            const GUID& id, UINT flags) {
  ComPtr<ICreateTypeInfo> made;
  Check(library.CreateTypeInfo(Changeable(name), kind, made.Out()));
  Check(made->SetGuid(id));
  Check(made->SetVersion(kMajorVersion, kMinorVersion));
  Check(made->SetTypeFlags(flags));
  return made;
}

void Inherit(ICreateTypeInfo& made, ITypeInfo& base, INT flags) {
  HREFTYPE reference = 0;
  Check(made.AddRefTypeInfo(&base, &reference));
  Check(made.AddImplType(0, reference));
  if (flags) Check(made.SetImplTypeFlags(0, flags));
}

ComPtr<ICreateTypeInfo> AddInterface(ICreateTypeLib2& library) {
  const auto made = Add(library, kInterfaceName, TKIND_INTERFACE, kInterfaceId,
                        TYPEFLAG_FDUAL | TYPEFLAG_FOLEAUTOMATION | TYPEFLAG_FDISPATCHABLE);
  Inherit(*made.Get(), *AutomationBase().Get(), 0);
  UINT index = 0;
  for (const Member& member : kMembers) AddMember(*made.Get(), index++, member);
  Check(made->LayOut());
  return made;
}

void AddClass(ICreateTypeLib2& library, ICreateTypeInfo& interfaceMade) {
  const auto made =
      Add(library, kClassName, TKIND_COCLASS, kClassId, TYPEFLAG_FCANCREATE | TYPEFLAG_FCONTROL);
  ComPtr<ITypeInfo> type;
  Check(interfaceMade.QueryInterface(IID_ITypeInfo, type.OutVoid()));
  Inherit(*made.Get(), *type.Get(), IMPLTYPEFLAG_FDEFAULT);
  Check(made->SetDocString(Changeable(kDescription)));
  Check(made->LayOut());
}

void Write(const std::wstring& file, SYSKIND system) {
  ComPtr<ICreateTypeLib2> library;
  Check(CreateTypeLib2(system, file.c_str(), library.Out()));
  Check(library->SetGuid(kLibraryId));
  Check(library->SetVersion(kMajorVersion, kMinorVersion));
  Check(library->SetLcid(LOCALE_NEUTRAL));
  Check(library->SetName(Changeable(kLibraryName)));
  Check(library->SetDocString(Changeable(kDescription)));
  const auto made = AddInterface(*library.Get());
  AddClass(*library.Get(), *made.Get());
  Check(library->SaveAllChanges());
}

/// The numbers in a file.
class FileNumbers {
 public:
  explicit FileNumbers(const std::wstring& name)
      : file_(std::string(name.begin(), name.end()),
              std::ios::in | std::ios::out | std::ios::binary) {}

  template <class Number>
  Number At(std::streamoff place) {
    Number number{};
    file_.seekg(place).read(reinterpret_cast<char*>(&number), sizeof number);
    return number;
  }
  void Subtract(std::streamoff place, int less) {
    const auto number = static_cast<std::int16_t>(At<std::int16_t>(place) - less);
    file_.seekp(place).write(reinterpret_cast<const char*>(&number), sizeof number);
  }

 private:
  std::fstream file_;
};

/// Puts the interface behind a base with pointers of 32 bits: the system counts the base with its
/// own width. The file has a table of its types, whose first one is the interface; there stand the
/// place of its members and its size in the vtable. Each member's record begins with its length.
void RebaseTo32Bits(const std::wstring& name) {
  constexpr int kTypes = 32, kTable = 84, kMembers = 4, kSize = 78, kPlace = 12, kTooMuch = 7 * 4;
  FileNumbers file(name);
  const auto type = file.At<std::int32_t>(kTable + 4 * file.At<std::int32_t>(kTypes));
  file.Subtract(type + kSize, kTooMuch);
  const auto members = file.At<std::int32_t>(type + kMembers);
  const std::streamoff first = members + 4, end = first + file.At<std::int32_t>(members);
  for (std::streamoff at = first; at < end; at += file.At<std::uint16_t>(at))
    file.Subtract(at + kPlace, kTooMuch);
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 3) return 2;
  const std::string_view name = argv[1];
  const std::wstring file(name.begin(), name.end());
  const bool wide = std::strcmp(argv[2], "win64") == 0;
  try {
    Write(file, wide ? SYS_WIN64 : SYS_WIN32);
    if (!wide) RebaseTo32Bits(file);
    return 0;
  } catch (const std::exception& error) {
    std::cerr << error.what() << "\n";
    return 1;
  }
}

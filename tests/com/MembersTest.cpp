// The control's members by early binding and by name, and what the type library says of them.
#include <map>
#include <utility>

#include "ComHost.h"

namespace lumenote {
namespace {

using MembersTest = ComTest;

struct Failure {
  HRESULT result;
  std::u16string description, source;
  bool operator==(const Failure&) const = default;
};

Failure LastFailure(HRESULT result) {
  ComPtr<IErrorInfo> info;
  if (GetErrorInfo(0, info.Out()) != S_OK) return {result, {}, {}};
  BSTR description = nullptr, source = nullptr;
  info->GetDescription(&description);
  info->GetSource(&source);
  const Failure failure{result, FromBstr(description), FromBstr(source)};
  SysFreeString(description);
  SysFreeString(source);
  return failure;
}

TEST_F(MembersTest, ANoteGoesInAndComesOut) {
  const std::u16string note(200'000, u'é');
  const Control control = Create();
#define LUMENOTE_WRITE(id, name, help) EXPECT_EQ(control->put_##name(Bstr(u"12").Get()), S_OK);
#define LUMENOTE_NONE(id, name, help)
  LUMENOTE_MEMBERS(LUMENOTE_WRITE, LUMENOTE_NONE, LUMENOTE_NONE)
  control->put_pStrOrchm(Bstr(note).Get());
  EXPECT_EQ(control->ShowMicroEdit(0), S_OK);
  EXPECT_EQ(NoteOf(control), note);
  EXPECT_EQ(control->put_pStrOrchm(nullptr), S_OK);
  EXPECT_EQ(NoteOf(control), u"");
  EXPECT_EQ(control->get_pStrOrchm(nullptr), E_POINTER);
}

TEST_F(MembersTest, AnErrorHasItsNumberItsTextAndItsMember) {
  const Control control = Create();
  ComPtr<ISupportErrorInfo> support;
  ASSERT_EQ(control->QueryInterface(IID_ISupportErrorInfo, support.OutVoid()), S_OK);
  EXPECT_EQ(support->InterfaceSupportsErrorInfo(kInterfaceId), S_OK);
  EXPECT_EQ(support->InterfaceSupportsErrorInfo(IID_IOleObject), S_FALSE);
  EXPECT_EQ(LastFailure(control->ShowMicroEdit(0)),
            (Failure{MAKE_HRESULT(1, FACILITY_CONTROL, 13), u"Incompatibilité de type",
                     u"Lumenote.CoBxRtf.pCouleurFen"}));
}

using Kinds = std::map<std::pair<std::wstring, INVOKEKIND>, MEMBERID>;

Kinds KindsOf(ITypeInfo& type, UINT count) {
  Kinds kinds;
  for (UINT i = 0; i < count; ++i) {
    FUNCDESC* function = nullptr;
    BSTR name = nullptr;
    UINT named = 0;
    type.GetFuncDesc(i, &function);
    type.GetNames(function->memid, &name, 1, &named);
    if (function->memid > 0 && function->memid < 0x10000)
      kinds[{std::wstring(name, SysStringLen(name)), function->invkind}] = function->memid;
    SysFreeString(name);
    type.ReleaseFuncDesc(function);
  }
  return kinds;
}

TEST_F(MembersTest, TheTypeLibrarySaysWhatTheTableSays) {
  const Kinds expected = {
#define LUMENOTE_PUT(id, name, help) {{L## #name, INVOKE_PROPERTYPUT}, id},
#define LUMENOTE_READ(id, name, help) {{L## #name, INVOKE_PROPERTYGET}, id},
#define LUMENOTE_METHOD(id, name, help) {{L## #name, INVOKE_FUNC}, id},
      LUMENOTE_MEMBERS(LUMENOTE_PUT, LUMENOTE_READ, LUMENOTE_METHOD)};
  ComPtr<ITypeLib> library;
  ASSERT_EQ(LoadRegTypeLib(kLibraryId, kMajorVersion, kMinorVersion, 0, library.Out()), S_OK);
  ComPtr<ITypeInfo> type;
  ASSERT_EQ(library->GetTypeInfoOfGuid(kInterfaceId, type.Out()), S_OK);
  TYPEATTR* about = nullptr;
  ASSERT_EQ(type->GetTypeAttr(&about), S_OK);
  EXPECT_EQ(KindsOf(*type.Get(), about->cFuncs), expected);
  EXPECT_TRUE(about->wTypeFlags & TYPEFLAG_FDUAL);
  type->ReleaseTypeAttr(about);
  for (const auto& [member, id] : expected) {
    auto* name = const_cast<wchar_t*>(member.first.c_str());
    DISPID found = 0;
    EXPECT_EQ(Create()->GetIDsOfNames(IID_NULL, &name, 1, LOCALE_USER_DEFAULT, &found), S_OK);
    EXPECT_EQ(found, id);
  }
}

TEST_F(MembersTest, TheClassDescribesItself) {
  ComPtr<IProvideClassInfo> provider;
  ASSERT_EQ(Create()->QueryInterface(IID_IProvideClassInfo, provider.OutVoid()), S_OK);
  ComPtr<ITypeInfo> type;
  ASSERT_EQ(provider->GetClassInfo(type.Out()), S_OK);
  BSTR name = nullptr;
  type->GetDocumentation(MEMBERID_NIL, &name, nullptr, nullptr, nullptr);
  EXPECT_EQ(FromBstr(name), u"CoBxRtf");
  SysFreeString(name);
}

}  // namespace
}  // namespace lumenote

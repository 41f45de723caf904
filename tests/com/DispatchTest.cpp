// The control's members by name, as scripting hosts call them: what is converted, filled in,
// refused.
#include <vector>

#include "ComHost.h"

namespace lumenote {
namespace {

/// A value that frees what it owns.
class Value : public VARIANT {
 public:
  explicit Value(VARENUM kind = VT_EMPTY) : VARIANT{} { vt = VARTYPE(kind); }
  explicit Value(std::u16string_view text) : Value(VT_BSTR) { bstrVal = ToBstr(text); }
  explicit Value(LONG number) : Value(VT_I4) { lVal = number; }
  Value(int kind, void* place) : VARIANT{} {
    vt = VARTYPE(kind);
    byref = place;
  }
  Value(const Value& other) : VARIANT{} { VariantCopy(this, const_cast<Value*>(&other)); }
  Value& operator=(const Value&) = delete;
  ~Value() { VariantClear(this); }
};

struct Answer {
  HRESULT result;
  std::u16string description, source;
};

class DispatchTest : public ComTest {
 protected:
  DISPID IdOf(std::wstring name) const {
    wchar_t* names[] = {name.data()};
    DISPID id = DISPID_UNKNOWN;
    control->GetIDsOfNames(IID_NULL, names, 1, LOCALE_USER_DEFAULT, &id);
    return id;
  }

  Answer Invoke(const wchar_t* name, WORD flags, const std::vector<Value>& arguments,
                VARIANT* result = nullptr, DISPID named = 0) const {
    const std::vector<VARIANT> given(arguments.begin(), arguments.end());
    DISPID put = DISPID_PROPERTYPUT;
    DISPPARAMS all{const_cast<VARIANT*>(given.data()), nullptr, UINT(given.size()), 0};
    if (flags == DISPATCH_PROPERTYPUT || named) {
      all.rgdispidNamedArgs = named ? &named : &put;
      all.cNamedArgs = 1;
    }
    EXCEPINFO error{};
    UINT wrong = 0;
    const HRESULT called = control->Invoke(IdOf(name), IID_NULL, LOCALE_USER_DEFAULT, flags, &all,
                                           result, &error, &wrong);
    const Answer answer{called == DISP_E_EXCEPTION ? error.scode : called,
                        FromBstr(error.bstrDescription), FromBstr(error.bstrSource)};
    SysFreeString(error.bstrDescription);
    SysFreeString(error.bstrSource);
    return answer;
  }

  const Control control = CreateWith(u"note");
};

TEST_F(DispatchTest, ValuesAreConvertedOrRefused) {
  BSTR text = ToBstr(u"255");
  Value number(LONG{255});
  Value real(VT_R8);
  real.dblVal = 255;
  struct Row {
    std::vector<Value> arguments;
    HRESULT result;
    bool isColour = true;
  };
  const Row rows[] = {{{Value(u"255")}, S_OK},
                      {{Value(LONG{255})}, S_OK},
                      {{real}, S_OK},
                      {{Value(VT_BYREF | VT_BSTR, &text)}, S_OK},
                      {{Value(VT_BYREF | VT_I4, &number.lVal)}, S_OK},
                      {{Value(VT_BYREF | VT_VARIANT, &number)}, S_OK},
                      {{Value(VT_EMPTY)}, S_OK, false},
                      {{Value(VT_NULL)}, DISP_E_TYPEMISMATCH, false}};
  for (const Row& row : rows) {
    const int at = int(&row - rows);
    EXPECT_EQ(Invoke(L"pCouleurFen", DISPATCH_PROPERTYPUT, row.arguments).result, row.result) << at;
    if (!row.isColour) continue;
    EXPECT_EQ(Invoke(L"ShowMicroEdit", DISPATCH_METHOD, {}).result, S_OK) << at;
  }
  SysFreeString(text);
}

TEST_F(DispatchTest, TheModeMayBeLeftOutOrNamed) {
  wchar_t method[] = L"ShowMicroEdit", parameter[] = L"mode";
  wchar_t* names[] = {method, parameter};
  DISPID ids[2];
  ASSERT_EQ(control->GetIDsOfNames(IID_NULL, names, 2, LOCALE_USER_DEFAULT, ids), S_OK);
  Value missing(VT_ERROR);
  missing.scode = DISP_E_PARAMNOTFOUND;
  const WORD flags = DISPATCH_METHOD;
  for (const auto& arguments : std::vector<std::vector<Value>>{{}, {missing}, {Value(u"0")}})
    EXPECT_EQ(Invoke(L"ShowMicroEdit", flags, arguments).result, S_OK);
  EXPECT_EQ(Invoke(L"ShowMicroEdit", flags, {Value(LONG{2})}, nullptr, ids[1]).result, S_OK);
  EXPECT_EQ(Invoke(L"ShowMicroEdit", flags, {Value(u"un")}).result, DISP_E_TYPEMISMATCH);
  EXPECT_EQ(Invoke(L"ShowMicroEdit", flags, {Value(u"4294967296")}).result, DISP_E_OVERFLOW);
}

TEST_F(DispatchTest, UnknownAndForbiddenMembersAreRefused) {
  EXPECT_EQ(IdOf(L"pInconnu"), DISPID_UNKNOWN);
  EXPECT_EQ(IdOf(L"PTITREFEN\u00CATRE"), IdOf(L"pTitreFen\u00EAtre")) << "names have no case";
  EXPECT_EQ(Invoke(L"pInconnu", DISPATCH_METHOD, {}).result, DISP_E_MEMBERNOTFOUND);
  Value read;
  EXPECT_EQ(Invoke(L"pTitreFen\u00EAtre", DISPATCH_PROPERTYGET, {}, &read).result,
            DISP_E_MEMBERNOTFOUND);
}

TEST_F(DispatchTest, AnErrorHasItsNumberTextAndSourceOnce) {
  Invoke(L"pCouleurFen", DISPATCH_PROPERTYPUT, {Value(u"rouge")});
  const Answer answer = Invoke(L"ShowMicroEdit", DISPATCH_METHOD, {});
  EXPECT_EQ(answer.result, MAKE_HRESULT(1, FACILITY_CONTROL, 13));
  EXPECT_EQ(answer.description, u"Incompatibilité de type");
  EXPECT_EQ(answer.source, u"Lumenote.CoBxRtf.pCouleurFen");
  control->ShowMicroEdit(0);  // nobody asks what was wrong
  control->put_pNomAppli(nullptr);
  ComPtr<IErrorInfo> left;
  EXPECT_EQ(GetErrorInfo(0, left.Out()), S_FALSE);
}

TEST_F(DispatchTest, LongStringsAndNulsPassWhole) {
  for (const std::u16string& note : {std::u16string(1'000'000, u'é'), std::u16string(u"a\0b", 3)}) {
    Invoke(L"pStrOrchm", DISPATCH_PROPERTYPUT, {Value(note)});
    Value read;
    EXPECT_EQ(Invoke(L"pStrOrchm", DISPATCH_PROPERTYGET, {}, &read).result, S_OK);
    ASSERT_EQ(read.vt, VT_BSTR);
    EXPECT_EQ(FromBstr(read.bstrVal), note);
  }
}

}  // namespace
}  // namespace lumenote

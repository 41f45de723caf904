// What assistive programs learn of the surface, and do with it.
#include "backends/win32/assist/ViewElement.h"
#include "win32/SurfaceBench.h"

// After the system's own header.
#include <oleacc.h>

namespace lumenote {
namespace {

class AssistTest : public SurfaceWindowTest {
 protected:
  template <class Interface>
  static ComOwner<Interface> Of(IUnknown* object) {
    void* found = nullptr;
    if (object) object->QueryInterface(__uuidof(Interface), &found);
    return ComOwner<Interface>(static_cast<Interface*>(found));
  }
  /// What a call gives that has only an object to return.
  template <class Interface, class Call>
  static ComOwner<Interface> Got(const Call& call) {
    Interface* object = nullptr;
    EXPECT_EQ(call(&object), S_OK);
    return ComOwner<Interface>(object);
  }
  /// The only object of an array.
  static ComOwner<ITextRangeProvider> Only(SAFEARRAY* array) {
    LONG first = 0;
    IUnknown* object = nullptr;
    EXPECT_EQ(SafeArrayGetElement(array, &first, &object), S_OK);
    SafeArrayDestroy(array);
    return Of<ITextRangeProvider>(ComOwner<IUnknown>(object).get());
  }
  static std::string TextIn(ITextRangeProvider& range, int most = -1) {
    BSTR text = nullptr;
    EXPECT_EQ(range.GetText(most, &text), S_OK);
    std::string shown = ToUtf8(Marked(std::u16string(Utf16({text, SysStringLen(text)})), 0, 0));
    SysFreeString(text);
    return shown.substr(1);
  }
  ComOwner<ITextProvider2> Text() {
    IUnknown* pattern = nullptr;
    EXPECT_EQ(element->GetPatternProvider(uia::kTextPattern2, &pattern), S_OK);
    return Of<ITextProvider2>(ComOwner<IUnknown>(pattern).get());
  }
  ComOwner<ITextRangeProvider> Range(Selection wanted) {
    surface.UserSelect(wanted.start, wanted.end);
    SAFEARRAY* array = nullptr;
    EXPECT_EQ(Text()->GetSelection(&array), S_OK);
    return Only(array);
  }

  /// The object of the older interface.
  ComOwner<IAccessible> Older() {
    void* found = nullptr;
    EXPECT_EQ(AccessibleObjectFromWindow(Handle(), static_cast<DWORD>(OBJID_CLIENT),
                                         __uuidof(IAccessible), &found),
              S_OK);
    return ComOwner<IAccessible>(static_cast<IAccessible*>(found));
  }

  const ComOwner<ViewElement> element{new ViewElement({Handle(), window->Text(), callbacks.name})};
};

TEST_F(AssistTest, AnswersLikeTheSystemsEditControl) {
  Put(u"un^ de|ux¶trois");
  EXPECT_EQ(Send(EM_GETSEL), MAKELRESULT(2, 5));
  EXPECT_EQ(Send(EM_GETLINECOUNT), 2);
  EXPECT_EQ(Send(EM_LINEINDEX, 1), 9);
  EXPECT_EQ(Send(EM_LINELENGTH, 10), 5);
  EXPECT_EQ(Send(EM_LINEFROMCHAR, static_cast<WPARAM>(-1)), 0);
  EXPECT_EQ(Send(EM_CHARFROMPOS, 0, Send(EM_POSFROMCHAR, 4)), 4);
  EXPECT_EQ(Send(EM_GETFIRSTVISIBLELINE), 0);
  char16_t line[] = u"\u0004----";
  EXPECT_EQ(Send(EM_GETLINE, 1, reinterpret_cast<LPARAM>(line)), 4);
  EXPECT_EQ(std::u16string(line), u"troi-");
  EXPECT_EQ(TextOf(Handle()), u"un deux\r\ntrois");
  Send(EM_SETSEL, 3, 7);
  EXPECT_EQ(Shown(), "un ^deux|¶trois");
  struct Row {
    UINT id;
    const char* after;
  };
  const Row rows[] = {{WM_COPY, "un ^deux|¶trois"},
                      {EM_SCROLLCARET, "un ^deux|¶trois"},
                      {EM_REPLACESEL, "un 2|¶trois"},
                      {WM_PASTE, "un 2deux|¶trois"},
                      {EM_UNDO, "un 2|¶trois"}};
  for (const Row& row : rows) {
    Send(row.id, FALSE, reinterpret_cast<LPARAM>(L"2"));
    EXPECT_EQ(Shown(), row.after) << row.id;
    EXPECT_EQ(Send(EM_CANUNDO), row.id == EM_REPLACESEL || row.id == WM_PASTE) << row.id;
  }
  Send(EM_REPLACESEL);
  EXPECT_EQ(Shown(), "un 2|¶trois") << "no text is an empty one";
  locked = true;
  for (const UINT id : {WM_PASTE, EM_REPLACESEL, WM_UNDO, WM_CUT}) {
    Send(EM_SETSEL, 0, 2);
    Send(id, FALSE, reinterpret_cast<LPARAM>(L"2"));
    EXPECT_EQ(Shown(), "^un| 2¶trois") << id;
  }
}

TEST_F(AssistTest, HasNameRoleValueAndState) {
  Put(u"un|¶deux");
  const auto object = Older();
  VARIANT self = {};
  self.vt = VT_I4;
  VARIANT answer = {};
  EXPECT_EQ(object->get_accRole(self, &answer), S_OK);
  EXPECT_EQ(answer.lVal, ROLE_SYSTEM_TEXT);
  BSTR text = nullptr;
  EXPECT_EQ(object->get_accValue(self, &text), S_OK);
  EXPECT_EQ(std::wstring(text), L"un\r\ndeux");
  SysFreeString(text);
  EXPECT_EQ(object->get_accName(self, &text), S_OK);
  EXPECT_EQ(std::wstring(text), L"Essai");
  EXPECT_EQ(object->put_accValue(self, text), S_OK);
  EXPECT_EQ(Shown(), "Essai|");
  locked = true;
  EXPECT_EQ(object->put_accValue(self, text), E_ACCESSDENIED);
  SysFreeString(text);
  EXPECT_EQ(object->get_accState(self, &answer), S_OK);
  EXPECT_TRUE(answer.lVal & STATE_SYSTEM_READONLY);
}

std::vector<std::pair<DWORD, LONG>> heard;
void CALLBACK Hear(HWINEVENTHOOK, DWORD event, HWND, LONG object, LONG, DWORD, DWORD) {
  heard.emplace_back(event, object);
}

// Events as from the system's edit control.
TEST_F(AssistTest, TellsWhatHappens) {
  heard.clear();
  const HWINEVENTHOOK hook = SetWinEventHook(EVENT_OBJECT_FOCUS, EVENT_OBJECT_TEXTSELECTIONCHANGED,
                                             nullptr, Hear, GetCurrentProcessId(), 0, 0);
  Put(u"a|");
  Send(WM_CHAR, L'b');
  window->Settle();
  MSG message;
  while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) DispatchMessageW(&message);
  UnhookWinEvent(hook);
  for (const DWORD event : {EVENT_OBJECT_VALUECHANGE, EVENT_OBJECT_TEXTSELECTIONCHANGED})
    EXPECT_EQ(std::ranges::count(heard, std::pair(event, LONG{OBJID_CLIENT})), 2) << event;
}

TEST_F(AssistTest, ElementIsADocumentThatAutomationFinds) {
  VARIANT value;
  EXPECT_EQ(element->GetPropertyValue(uia::kControlType, &value), S_OK);
  EXPECT_EQ(value.lVal, uia::kDocumentControl);
  EXPECT_EQ(element->GetPropertyValue(uia::kName, &value), S_OK);
  EXPECT_EQ(std::wstring(value.bstrVal), L"Essai");
  VariantClear(&value);
  EXPECT_EQ(element->GetPropertyValue(uia::kHasKeyboardFocus, &value), S_OK);
  EXPECT_EQ(value.boolVal, VARIANT_TRUE);
  IUnknown* none = nullptr;
  EXPECT_EQ(element->GetPatternProvider(10000, &none), S_OK);
  EXPECT_EQ(none, nullptr);
  EXPECT_NE(Send(WM_GETOBJECT, 0, uia::kRootObject), 0);
}

TEST_F(AssistTest, RangesWalkAndCompare) {
  struct Row {
    Selection range;
    char act;  // Expand, Move, or move Start or Behind
    uia::Unit unit;
    int count;
    const char* text;
    int moved = 0;
  };
  const Row rows[] = {{{4, 5}, 'E', uia::kWord, 0, "deux "},
                      {{4, 4}, 'E', uia::kLine, 0, "un deux trois¶"},
                      {{4, 5}, 'E', uia::kDocument, 0, "un deux trois¶quatre"},
                      {{3, 8}, 'M', uia::kWord, 1, "trois", 1},
                      {{3, 8}, 'M', uia::kParagraph, 5, "quatre", 1},
                      {{3, 8}, 'B', uia::kCharacter, -7, "", -7},
                      {{3, 8}, 'S', uia::kWord, -2, "un deux ", -1},
                      {{3, 8}, 'B', uia::kFormat, 1, "deux trois¶", 1}};
  for (const Row& row : rows) {
    Put(u"|un deux trois¶quatre");
    const auto range = Range(row.range);
    int moved = 0;
    if (row.act == 'E') range->ExpandToEnclosingUnit(row.unit);
    if (row.act == 'M') range->Move(row.unit, row.count, &moved);
    if (row.act == 'S') range->MoveEndpointByUnit(uia::kStart, row.unit, row.count, &moved);
    if (row.act == 'B') range->MoveEndpointByUnit(uia::kEnd, row.unit, row.count, &moved);
    EXPECT_EQ(TextIn(*range), row.text);
    EXPECT_EQ(moved, row.moved) << row.text;
  }
  const auto one = Range({0, 2});
  const auto other = Range({3, 7});
  int order = 0;
  one->CompareEndpoints(uia::kEnd, other.get(), uia::kStart, &order);
  EXPECT_LT(order, 0);
  BOOL equal = TRUE;
  EXPECT_EQ(one->Compare(other.get(), &equal), S_OK);
  EXPECT_FALSE(equal);
  one->MoveEndpointByRange(uia::kEnd, other.get(), uia::kEnd);
  EXPECT_EQ(TextIn(*one), "un deux");
  EXPECT_EQ(TextIn(*one, 4), "un d");
  EXPECT_EQ(one->Compare(nullptr, &equal), E_INVALIDARG);
}

TEST_F(AssistTest, RangesFindSelectAndOutliveEdits) {
  Put(u"Un un¶deux|");
  const auto all =
      Got<ITextRangeProvider>([&](auto** out) { return Text()->get_DocumentRange(out); });
  BSTR wanted = SysAllocString(L"un");
  const auto found =
      Got<ITextRangeProvider>([&](auto** out) { return all->FindText(wanted, TRUE, TRUE, out); });
  SysFreeString(wanted);
  EXPECT_EQ(found->Select(), S_OK);
  EXPECT_EQ(Shown(), "Un ^un|¶deux");
  BOOL active = FALSE;
  const auto caret =
      Got<ITextRangeProvider>([&](auto** out) { return Text()->GetCaretRange(&active, out); });
  EXPECT_TRUE(active);
  const POINTL at = OnScreen(3);
  const auto hit = Got<ITextRangeProvider>([&](auto** out) {
    return Text()->RangeFromPoint({1.0 * at.x, 1.0 * at.y}, out);
  });
  int order = 1;
  hit->CompareEndpoints(uia::kStart, found.get(), uia::kStart, &order);
  EXPECT_EQ(order, 0);
  SAFEARRAY* array = nullptr;
  EXPECT_EQ(all->GetBoundingRectangles(&array), S_OK);
  EXPECT_EQ(array->rgsabound[0].cElements, 2u * 4);
  double left = 0;
  LONG first = 0;
  SafeArrayGetElement(array, &first, &left);
  EXPECT_EQ(left + 1, OnScreen(0).x);
  SafeArrayDestroy(array);
  surface.Text(u"a");
  EXPECT_EQ(TextIn(*all), "a");
  window->Detach();
  EXPECT_EQ(all->Select(), uia::kNotAvailable);
  EXPECT_EQ(caret->ScrollIntoView(TRUE), uia::kNotAvailable);
}

TEST_F(AssistTest, WhatIsHeldOutlivesTheWindowAndKeepsTheCode) {
  Put(u"un|");
  auto older = Older();
  auto text = Text();
  auto range = Range({0, 2});
  const HWND handle = Handle();
  window->Detach();
  window.reset();
  EXPECT_FALSE(IsWindow(handle));
  VARIANT self = {};
  self.vt = VT_I4;
  VARIANT value;
  BSTR told = nullptr;
  IRawElementProviderSimple* host = nullptr;
  ITextRangeProvider* all = nullptr;
  for (const HRESULT answer :
       {older->get_accName(self, &told), older->get_accValue(self, &told), range->Select(),
        element->GetPropertyValue(uia::kName, &value), text->get_DocumentRange(&all),
        element->get_HostRawElementProvider(&host), range->GetText(-1, &told)})
    EXPECT_EQ(answer, uia::kNotAvailable);
  const int held = CodeInUse::Count();
  older.reset();
  range.reset();
  text.reset();
  EXPECT_EQ(CodeInUse::Count(), held - 3);
}

TEST_F(AssistTest, RangesTellTheirLook) {
  surface.TextRTF(u"{\\rtf1{\\fonttbl{\\f0 Arial;}}\\f0\\qc\\fs24 un {\\b\\uldb deux} trois}");
  window->Settle();
  const auto value = [&](Selection range, TEXTATTRIBUTEID id) {
    VARIANT out;
    EXPECT_EQ(Range(range)->GetAttributeValue(id, &out), S_OK);
    return out;
  };
  EXPECT_EQ(value({3, 7}, uia::kFontWeight).lVal, FW_BOLD);
  EXPECT_EQ(value({0, 2}, uia::kFontWeight).lVal, FW_NORMAL);
  EXPECT_EQ(value({3, 7}, uia::kUnderline).lVal, 3);
  EXPECT_EQ(value({0, 9}, uia::kFontSize).dblVal, 12);
  EXPECT_EQ(value({0, 9}, uia::kAlignment).lVal, 1);
  EXPECT_EQ(value({4, 4}, uia::kFontWeight).lVal, FW_BOLD);
  for (const TEXTATTRIBUTEID id : {TEXTATTRIBUTEID{uia::kFontWeight}, TEXTATTRIBUTEID{40000}})
    EXPECT_EQ(value({0, 9}, id).vt, VT_UNKNOWN) << id;
  VARIANT bold = {};
  bold.vt = VT_I4;
  bold.lVal = FW_BOLD;
  const auto found = Got<ITextRangeProvider>([&](auto** out) {
    return Range({0, 13})->FindAttribute(uia::kFontWeight, bold, FALSE, out);
  });
  EXPECT_EQ(TextIn(*found), "deux");
}

}  // namespace
}  // namespace lumenote

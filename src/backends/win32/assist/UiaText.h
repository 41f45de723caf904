// The part of UI Automation that the compiler's headers lack, or that only C can read.
#pragma once
#include "backends/win32/system/System.h"

// After the system's own header.
#include <ole2.h>
#include <uiautomationcore.h>

namespace lumenote::uia {

inline constexpr LONG kRootObject = -25;  // asked for by a WM_GETOBJECT
inline constexpr auto kNotAvailable = static_cast<HRESULT>(0x80040201);
inline constexpr auto kInvalidOperation = static_cast<HRESULT>(0x80131509);

struct Point {
  double x;
  double y;
};

enum Endpoint { kStart, kEnd };
enum Unit { kCharacter, kFormat, kWord, kLine, kParagraph, kPage, kDocument };
enum SelectionSupport { kNoSelection, kOneSelection, kManySelections };

enum : PATTERNID { kTextPattern = 10014, kTextPattern2 = 10024 };
enum : EVENTID { kSelectionChanged = 20014, kTextChanged = 20015 };
enum : PROPERTYID {
  kControlType = 30003,
  kName = 30005,
  kHasKeyboardFocus = 30008,
  kIsKeyboardFocusable = 30009
};
inline constexpr CONTROLTYPEID kDocumentControl = 50030;
enum Attribute : TEXTATTRIBUTEID {
  kBackgroundColour = 40001,
  kFontName = 40005,
  kFontSize = 40006,
  kFontWeight = 40007,
  kForegroundColour = 40008,
  kAlignment = 40009,
  kIsHidden = 40013,
  kIsItalic = 40014,
  kIsReadOnly = 40015,
  kIsSubscript = 40016,
  kIsSuperscript = 40017,
  kStrikethrough = 40026,
  kUnderline = 40030
};

}  // namespace lumenote::uia

// The system's interfaces, by their names, order and numbers.
MIDL_INTERFACE("5347ad7b-c355-46f8-aff5-909033582f63") ITextRangeProvider : public IUnknown {
  virtual HRESULT STDMETHODCALLTYPE Clone(ITextRangeProvider * *out) = 0;
  virtual HRESULT STDMETHODCALLTYPE Compare(ITextRangeProvider * other, BOOL * out) = 0;
  virtual HRESULT STDMETHODCALLTYPE CompareEndpoints(lumenote::uia::Endpoint own,
                                                     ITextRangeProvider * other,
                                                     lumenote::uia::Endpoint its, int* out) = 0;
  virtual HRESULT STDMETHODCALLTYPE ExpandToEnclosingUnit(lumenote::uia::Unit unit) = 0;
  virtual HRESULT STDMETHODCALLTYPE FindAttribute(TEXTATTRIBUTEID id, VARIANT value, BOOL backward,
                                                  ITextRangeProvider * *out) = 0;
  virtual HRESULT STDMETHODCALLTYPE FindText(BSTR text, BOOL backward, BOOL ignoreCase,
                                             ITextRangeProvider * *out) = 0;
  virtual HRESULT STDMETHODCALLTYPE GetAttributeValue(TEXTATTRIBUTEID id, VARIANT * out) = 0;
  virtual HRESULT STDMETHODCALLTYPE GetBoundingRectangles(SAFEARRAY * *out) = 0;
  virtual HRESULT STDMETHODCALLTYPE GetEnclosingElement(IRawElementProviderSimple * *out) = 0;
  virtual HRESULT STDMETHODCALLTYPE GetText(int most, BSTR* out) = 0;
  virtual HRESULT STDMETHODCALLTYPE Move(lumenote::uia::Unit unit, int count, int* out) = 0;
  virtual HRESULT STDMETHODCALLTYPE MoveEndpointByUnit(
      lumenote::uia::Endpoint own, lumenote::uia::Unit unit, int count, int* out) = 0;
  virtual HRESULT STDMETHODCALLTYPE MoveEndpointByRange(
      lumenote::uia::Endpoint own, ITextRangeProvider * other, lumenote::uia::Endpoint its) = 0;
  virtual HRESULT STDMETHODCALLTYPE Select() = 0;
  virtual HRESULT STDMETHODCALLTYPE AddToSelection() = 0;
  virtual HRESULT STDMETHODCALLTYPE RemoveFromSelection() = 0;
  virtual HRESULT STDMETHODCALLTYPE ScrollIntoView(BOOL alignToTop) = 0;
  virtual HRESULT STDMETHODCALLTYPE GetChildren(SAFEARRAY * *out) = 0;
};

MIDL_INTERFACE("3589c92c-63f3-4367-99bb-ada653b77cf2") ITextProvider : public IUnknown {
  virtual HRESULT STDMETHODCALLTYPE GetSelection(SAFEARRAY * *out) = 0;
  virtual HRESULT STDMETHODCALLTYPE GetVisibleRanges(SAFEARRAY * *out) = 0;
  virtual HRESULT STDMETHODCALLTYPE RangeFromChild(IRawElementProviderSimple * child,
                                                   ITextRangeProvider * *out) = 0;
  virtual HRESULT STDMETHODCALLTYPE RangeFromPoint(lumenote::uia::Point at,
                                                   ITextRangeProvider * *out) = 0;
  virtual HRESULT STDMETHODCALLTYPE get_DocumentRange(ITextRangeProvider * *out) = 0;
  virtual HRESULT STDMETHODCALLTYPE get_SupportedTextSelection(lumenote::uia::SelectionSupport *
                                                               out) = 0;
};

MIDL_INTERFACE("0dc5e6ed-3e16-4bf1-8f9a-a979878bc195") ITextProvider2 : public ITextProvider {
  virtual HRESULT STDMETHODCALLTYPE RangeFromAnnotation(IRawElementProviderSimple * annotation,
                                                        ITextRangeProvider * *out) = 0;
  virtual HRESULT STDMETHODCALLTYPE GetCaretRange(BOOL * active, ITextRangeProvider * *out) = 0;
};

__CRT_UUID_DECL(ITextRangeProvider, 0x5347ad7b, 0xc355, 0x46f8, 0xaf, 0xf5, 0x90, 0x90, 0x33, 0x58,
                0x2f, 0x63)
__CRT_UUID_DECL(ITextProvider, 0x3589c92c, 0x63f3, 0x4367, 0x99, 0xbb, 0xad, 0xa6, 0x53, 0xb7, 0x7c,
                0xf2)
__CRT_UUID_DECL(ITextProvider2, 0x0dc5e6ed, 0x3e16, 0x4bf1, 0x8f, 0x9a, 0xa9, 0x79, 0x87, 0x8b,
                0xc1, 0x95)

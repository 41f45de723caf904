// What input methods ask of the surface's window.
#include <vector>

#include "win32/SurfaceBench.h"

// After the system's own header.
#include <imm.h>

namespace lumenote {
namespace {

class ImeRequestTest : public SurfaceWindowTest {
 protected:
  template <class Answer>
  LRESULT Ask(WPARAM what, Answer& answer) {
    return Send(WM_IME_REQUEST, what, reinterpret_cast<LPARAM>(&answer));
  }
  /// The text around the caret with the marked part between brackets; the answer if there is none.
  std::string Told(WPARAM what) {
    const LRESULT size = Send(WM_IME_REQUEST, what);
    std::vector<RECONVERTSTRING> room(static_cast<std::size_t>(size) / sizeof(RECONVERTSTRING) + 2);
    RECONVERTSTRING& told = room.front();
    told.dwSize = static_cast<DWORD>(size - 1);
    EXPECT_EQ(Ask(what, told), 0) << "no room";
    told.dwSize = static_cast<DWORD>(size);
    EXPECT_EQ(Ask(what, told), size);
    if (size == 0) return "0";
    const auto* begin = reinterpret_cast<const char*>(&told) + told.dwStrOffset;
    std::u16string text(reinterpret_cast<const char16_t*>(begin), told.dwStrLen);
    const std::size_t from = told.dwCompStrOffset / sizeof(char16_t);
    text.insert(from + told.dwCompStrLen, u"]").insert(from, u"[");
    return ToUtf8(text);
  }
};

TEST_F(ImeRequestTest, ShowsTheCaretsParagraphAndConvertsASelectionInIt) {
  const std::tuple<const char16_t*, const char*, const char*> rows[] = {
      {u"un ^deux| trois", "un [deux] trois", "un [deux] trois"},
      {u"a¶un |deux^¶b", "un [deux]", "un [deux]"},
      {u"a¶bc|", "bc[]", "bc[]"},
      {u"|", "[]", "[]"},
      {u"a^a¶bb|b¶c", "[bb]b", "0"}};
  for (const auto& [text, fed, converted] : rows) {
    Put(text);
    EXPECT_EQ(Told(IMR_DOCUMENTFEED), fed);
    EXPECT_EQ(Told(IMR_RECONVERTSTRING), converted);
  }
  Put(std::u16string(3000, u'a') + u"|" + std::u16string(3000, u'b'));
  EXPECT_LT(Send(WM_IME_REQUEST, IMR_DOCUMENTFEED), 4000) << "of a long paragraph a part";
}

TEST_F(ImeRequestTest, TheConfirmedPartIsSelectedAndNothingElse) {
  const std::tuple<DWORD, DWORD, LRESULT, const char*> rows[] = {
      {0, 2, TRUE, "a¶^un| deux"},         {6, 4, TRUE, "a¶un ^deux|"},
      {14, 0, TRUE, "a¶un deux|"},         {6, 5, FALSE, "a¶un| deux"},
      {16, 0, FALSE, "a¶un| deux"},        {0, 0xFFFFFFFF, FALSE, "a¶un| deux"},
      {0xFFFFFFFE, 2, FALSE, "a¶un| deux"}};
  for (const auto& [offset, length, answer, after] : rows) {
    Put(u"a¶un| deux");
    RECONVERTSTRING chosen = {};
    chosen.dwCompStrOffset = offset;
    chosen.dwCompStrLen = length;
    EXPECT_EQ(Ask(IMR_CONFIRMRECONVERTSTRING, chosen), answer) << offset;
    EXPECT_EQ(Shown(), after);
  }
  locked = true;
  EXPECT_EQ(Told(IMR_RECONVERTSTRING), "0");
}

TEST_F(ImeRequestTest, TellsWhereTheCaretIsAndItsFont) {
  Put(u"un deux|");
  const PixelRect caret = *window->Text().Pane().CaretAt(7);
  const auto expect = [&](POINT at) {
    EXPECT_EQ(at.x, static_cast<LONG>(caret.left));
    EXPECT_EQ(at.y, static_cast<LONG>(caret.top));
  };
  COMPOSITIONFORM composition = {};
  EXPECT_EQ(Ask(IMR_COMPOSITIONWINDOW, composition), TRUE);
  expect(composition.ptCurrentPos);
  CANDIDATEFORM list = {};
  EXPECT_EQ(Ask(IMR_CANDIDATEWINDOW, list), TRUE);
  expect(list.ptCurrentPos);
  EXPECT_EQ(list.rcArea.bottom, static_cast<LONG>(caret.bottom));
  IMECHARPOSITION place = {};
  for (const DWORD behind : {0u, 1u, 0xFFFFFFFFu}) {
    place.dwCharPos = behind;
    EXPECT_EQ(Ask(IMR_QUERYCHARPOSITION, place), TRUE);
    ScreenToClient(Handle(), &place.pt);
    expect(place.pt);
    EXPECT_EQ(place.cLineHeight, static_cast<UINT>(caret.Height()));
  }
  LOGFONTW font = {};
  EXPECT_EQ(Ask(IMR_COMPOSITIONFONT, font), TRUE);
  EXPECT_NE(font.lfHeight, 0);
  EXPECT_EQ(Send(WM_IME_REQUEST, IMR_COMPOSITIONFONT), 0) << "nowhere to put it";
}

}  // namespace
}  // namespace lumenote
